pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The ground under white text: a tone's solid colour, paler under the pointer and darker while pressed.
Rectangle {
    id: root

    property int tone: Tone.Accent
    property bool hovered: false
    property bool pressed: false
    readonly property color solid: Theme.tint(root.tone).solid

    objectName: "solid"
    color: root.pressed ? Qt.darker(root.solid, Theme.pressedDarker) : root.solid
    opacity: root.hovered && !root.pressed ? Theme.underPointer : 1
}
