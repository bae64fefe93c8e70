pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// An open ring for what is left to do, a check for what is done. Asks for the other of the two.
Pressable {
    id: root

    property bool resolved: false

    implicitWidth: 24
    implicitHeight: 24
    radius: 7
    name: root.resolved ? "Resolved" : "Resolve"

    Accessible.checkable: true
    Accessible.checked: root.resolved

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        visible: root.hovered
        color: root.pressed ? Theme.pressed : Theme.hover
    }
    Rectangle {
        objectName: "ring"
        anchors.centerIn: parent
        visible: !root.resolved && !root.busy
        width: 13
        height: 13
        radius: 6.5
        color: "transparent"
        border.width: 1.1
        border.pixelAligned: false
        border.color: Theme.tertiary
    }
    Symbol {
        anchors.centerIn: parent
        visible: root.resolved && !root.busy
        name: "checkmark.circle.fill"
        size: 13
        color: Theme.reviewed.plain
    }
    Spinner {
        anchors.centerIn: parent
        visible: root.busy
        size: 11
        color: Theme.secondary
    }
}
