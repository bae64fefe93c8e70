pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A small capsule button: text in the ink of its tone on a wash of it, or white on the solid tone.
Pressable {
    id: root

    required property string title
    property string icon: ""
    property int tone: Tone.Neutral
    property bool filled: false
    property real size: 12
    property int weight: root.tone === Tone.Neutral ? Font.Medium : Font.DemiBold

    property real wash: Theme.pillWash
    property real hoverWash: Theme.pillHoverWash
    /// It gets no wider, in points: a longer title is cut.
    property real widest: 10000

    readonly property tint tint: Theme.tint(root.tone)
    readonly property color ink: root.filled ? Theme.onSolid : root.tint.ink

    // The width that the capsule had stays while its action is under way.
    property real restingWidth: 0
    implicitWidth: Math.max(Math.ceil(row.implicitWidth) + 20, root.busy ? root.restingWidth : 0)
    implicitHeight: Math.ceil(label.implicitHeight) + 10
    radius: root.height / 2
    name: root.title
    opacity: root.enabled ? 1 : Theme.disabled

    onBusyChanged: {
        if (root.busy)
            root.restingWidth = root.implicitWidth;
    }

    Rectangle {
        objectName: "wash"
        visible: !root.filled
        anchors.fill: parent
        radius: root.radius
        color: root.tint.plain
        opacity: root.pressed ? Theme.pressedWash : root.hovered ? root.hoverWash : root.wash
    }
    When {
        active: root.filled
        Solid {
            width: root.width
            height: root.height
            radius: root.radius
            tone: root.tone
            hovered: root.hovered
            pressed: root.pressed
        }
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.icon.length > 0 && !root.busy
            name: root.icon
            size: root.size
            color: root.ink
        }
        When {
            active: root.busy
            Spinner {
                y: (row.height - height) / 2
                size: 11
                color: root.ink
            }
        }
        Label {
            id: label
            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.widest - 20 - x)
            text: root.title
            size: root.size
            weight: root.weight
            color: root.ink
            spoken: false
        }
    }
}
