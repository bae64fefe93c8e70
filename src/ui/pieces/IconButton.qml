pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A button that is nothing but a symbol, on a ground that shows under the pointer.
Pressable {
    id: root

    required property string icon
    property real size: 13
    property bool bold: false
    property color color: Theme.secondary
    /// What it opened is open.
    property bool open: false

    implicitWidth: 26
    implicitHeight: 26
    radius: 7
    name: root.help
    opacity: root.enabled ? 1 : Theme.atTheEnd

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        visible: root.hovered || root.open
        color: root.pressed || root.open ? Theme.pressed : Theme.hover
    }
    Symbol {
        anchors.centerIn: parent
        visible: !root.busy
        name: root.icon
        size: root.size
        bold: root.bold
        color: root.color
    }
    When {
        active: root.busy
        Spinner {
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            size: root.size
            color: root.color
        }
    }
}
