pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A button of a bar: a symbol and a word on the bar's track, solid in the accent colour while its tool is on.
Pressable {
    id: root

    required property string title
    property string icon: ""
    property bool on: false

    implicitWidth: Math.ceil(row.implicitWidth) + 18
    implicitHeight: 26
    radius: 7
    name: root.title
    opacity: root.enabled ? 1 : Theme.disabled
    Accessible.checkable: true
    Accessible.checked: root.on

    Rectangle {
        visible: !root.on
        anchors.fill: parent
        radius: root.radius
        color: Theme.track
        Rectangle {
            anchors.fill: parent
            radius: root.radius
            visible: root.hovered
            color: root.pressed ? Theme.pressed : Theme.hover
        }
    }
    Solid {
        visible: root.on
        anchors.fill: parent
        radius: root.radius
        hovered: root.hovered
        pressed: root.pressed
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.icon.length > 0
            name: root.icon
            size: 12
            color: root.on ? Theme.onSolid : Theme.text
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            size: 12
            weight: Font.Medium
            color: root.on ? Theme.onSolid : Theme.text
            spoken: false
        }
    }
}
