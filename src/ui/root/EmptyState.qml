pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Says that there is nothing to show yet, and what to do about it.
Column {
    id: root

    required property string title
    required property string line

    spacing: 6

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.title
        size: 24
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.line
        color: Theme.secondary
    }
}
