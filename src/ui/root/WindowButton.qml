pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// One of the window's own buttons. The window manager's keys do the same, so the keyboard passes it by.
Pressable {
    id: root

    required property int sign
    /// The pointer is on one of the buttons.
    required property bool near
    /// The window has the keyboard.
    required property bool active

    // Easier to hit than to see.
    implicitWidth: 21
    implicitHeight: 25
    activeFocusOnTab: false
    help: root.name

    Rectangle {
        anchors.centerIn: parent
        width: 13
        height: 13
        radius: 6.5
        color: root.pressed ? Theme.windowButtonPressed : root.near ? Theme.windowButtonNear : Theme.pressed

        WindowGlyph {
            anchors.fill: parent
            visible: root.active || root.near
            sign: root.sign
            color: Theme.secondary
        }
    }
}
