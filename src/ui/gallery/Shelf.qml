pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A row of the sheet: a caption and, under it, the pieces that it names.
Column {
    id: root

    required property string caption
    default property alias pieces: flow.data

    spacing: 7
    width: parent ? parent.width : 0

    Label {
        text: root.caption
        size: 11
        weight: Font.DemiBold
        color: Theme.secondary
    }
    Flow {
        id: flow
        width: root.width
        spacing: 9
    }
}
