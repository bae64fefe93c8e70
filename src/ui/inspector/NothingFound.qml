pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// In the place of findings, on a page without any.
Column {
    id: root

    required property string line

    spacing: 3

    Label {
        width: parent.width
        text: "Nothing different here."
        size: 14
        weight: Font.DemiBold
    }
    Label {
        width: parent.width
        text: root.line
        size: 12.5
        lineHeight: 17
        lineHeightMode: Text.FixedHeight
        wrapMode: Text.Wrap
        color: Theme.secondary
    }
}
