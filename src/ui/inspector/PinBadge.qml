pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The number of a note's pin, as the pin on the page carries it.
Rectangle {
    id: root

    required property string number

    width: 16
    height: 16
    radius: 8
    color: Theme.accent.solid

    Rectangle {
        anchors.fill: parent
        anchors.margins: -1.2
        radius: 9.2
        color: "transparent"
        border.width: 1.2
        border.pixelAligned: false
        border.color: Theme.onSolid
    }
    Label {
        anchors.centerIn: parent
        text: root.number
        size: 8.5
        weight: Font.Bold
        color: Theme.onSolid
        Accessible.name: "Pin " + root.number
    }
}
