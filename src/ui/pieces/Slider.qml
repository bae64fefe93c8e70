pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A share between nothing and all. It asks to be moved; `value` is the screen's to set.
Item {
    id: root

    property real value: 0
    property string name: ""
    property string help: ""
    // The names that assistive technology looks for.
    readonly property real minimumValue: 0
    readonly property real maximumValue: 1
    readonly property real stepSize: 0.05

    signal moved(value: real)

    readonly property int knob: 14

    implicitWidth: 110
    implicitHeight: 20
    activeFocusOnTab: true
    opacity: root.enabled ? 1 : Theme.disabled

    Accessible.role: Accessible.Slider
    Accessible.name: root.name
    Accessible.description: root.help
    Accessible.focusable: true
    Accessible.onIncreaseAction: root.moveTo(root.value + root.stepSize)
    Accessible.onDecreaseAction: root.moveTo(root.value - root.stepSize)

    function moveTo(wanted: real) {
        const value = Math.max(root.minimumValue, Math.min(root.maximumValue, wanted));
        if (root.enabled && value !== root.value)
            root.moved(value);
    }

    Keys.onLeftPressed: root.moveTo(root.value - root.stepSize)
    Keys.onRightPressed: root.moveTo(root.value + root.stepSize)

    Rectangle {
        id: track
        anchors.verticalCenter: parent.verticalCenter
        width: root.width
        height: 4
        radius: 2
        color: Theme.pressed
        Rectangle {
            width: handle.x + root.knob / 2
            height: parent.height
            radius: 2
            color: Theme.accent.plain
        }
    }
    Item {
        id: handle
        x: root.value * (root.width - root.knob)
        anchors.verticalCenter: parent.verticalCenter
        width: root.knob
        height: root.knob
        Shadow {
            anchors.fill: parent
            radius: root.knob / 2
            drop: 1
            blur: 2
            color: Theme.segmentShade
        }
        Outlined {
            anchors.fill: parent
            radius: root.knob / 2
            color: Theme.paper
        }
        FocusRing {
            visible: root.activeFocus
            around: root.knob / 2
        }
    }
    MouseArea {
        id: area
        anchors.fill: parent
        preventStealing: true
        onPressed: event => root.moveTo((event.x - root.knob / 2) / (root.width - root.knob))
        onPositionChanged: event => root.moveTo((event.x - root.knob / 2) / (root.width - root.knob))
    }
    Hint {
        text: root.help
    }
}
