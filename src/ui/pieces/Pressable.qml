pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// What all buttons have in common: the pointer, the keyboard, the voice and the hint. It shrinks a little while it is
/// pressed and decides nothing about how it looks.
Item {
    id: root

    /// What the button is called, as the person reads it.
    property string name: ""
    /// What it does, as the hint says it.
    property string help: ""
    /// Its action is under way: it cannot be pressed again.
    property bool busy: false
    /// The radius of its corners, for the ring of the keyboard's focus.
    property real radius: 0

    readonly property bool live: root.enabled && !root.busy
    property bool hovered: area.containsMouse && root.live
    property bool pressed: (area.pressed && area.containsMouse || root.keyDown) && root.live
    property bool keyDown: false

    signal clicked

    /// Presses the button, whoever asks for it; nothing happens while it is busy or disabled.
    function press() {
        if (root.live)
            root.clicked();
    }

    /// A key that is held down presses once.
    function enter(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.press();
    }

    activeFocusOnTab: true
    scale: root.pressed ? Theme.pressedScale : 1

    Accessible.role: Accessible.Button
    Accessible.name: root.name
    Accessible.description: root.help
    Accessible.focusable: true
    Accessible.onPressAction: root.press()

    onActiveFocusChanged: root.keyDown = false
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Space;
        if (event.accepted && !event.isAutoRepeat)
            root.keyDown = true;
    }
    Keys.onReleased: event => {
        event.accepted = event.key === Qt.Key_Space && root.keyDown && !event.isAutoRepeat;
        if (!event.accepted)
            return;
        root.keyDown = false;
        root.press();
    }
    Keys.onReturnPressed: event => root.enter(event)
    Keys.onEnterPressed: event => root.enter(event)

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.press()
    }
    Hint {
        text: root.help
    }
    FocusRing {
        around: root.radius
    }
}
