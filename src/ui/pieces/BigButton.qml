pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The one thing to do here: a full-width button in the accent colour.
Pressable {
    id: root

    required property string title
    property string icon: ""

    implicitWidth: Math.ceil(row.implicitWidth) + 32
    implicitHeight: 34
    radius: 9
    name: root.busy ? "Starting…" : root.title
    opacity: root.enabled ? 1 : Theme.disabled

    Solid {
        anchors.fill: parent
        radius: root.radius
        tone: Tone.Accent
        hovered: root.hovered
        pressed: root.pressed
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 7
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.icon.length > 0 && !root.busy
            name: root.icon
            size: 14
            color: Theme.onSolid
        }
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.busy
            size: 14
            color: Theme.onSolid
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.name
            weight: Font.DemiBold
            color: Theme.onSolid
            spoken: false
        }
    }
}
