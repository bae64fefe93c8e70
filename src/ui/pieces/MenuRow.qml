pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// One choice of a menu. It shows where the keyboard or the pointer is; the menu decides where that may be.
Item {
    id: root

    required property string title
    /// The keys that do the same; none for a choice that has none.
    property string keys: ""
    /// What it stands for is so already.
    property bool checked: false
    /// It cannot be taken back.
    property bool destructive: false
    /// The keyboard or the pointer is on it.
    property bool current: false
    /// How far from the leading side its words begin: behind the room for a check mark where the menu has some.
    property real indent: 10

    readonly property real least: root.indent + words.implicitWidth + (root.keys.length > 0 ? 28 + shortcut.implicitWidth : 0) + 10

    signal pointed
    signal unpointed
    signal chosen

    implicitHeight: 28

    Accessible.role: Accessible.MenuItem
    Accessible.name: root.title
    Accessible.description: root.keys
    Accessible.checkable: root.checked
    Accessible.checked: root.checked
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.onPressAction: root.choose()

    function choose() {
        if (root.enabled)
            root.chosen();
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: root.current ? Theme.pressed : "transparent"
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: root.checked
        name: "checkmark"
        size: 10
        bold: true
        color: Theme.text
    }
    Label {
        id: words
        x: root.indent
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        color: !root.enabled ? Theme.faint : root.destructive ? Theme.issue.ink : Theme.text
        spoken: false
    }
    Label {
        id: shortcut
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: root.keys
        size: 12
        color: root.enabled ? Theme.tertiary : Theme.faint
        spoken: false
    }
    HoverHandler {
        onHoveredChanged: {
            if (hovered)
                root.pointed();
            else
                root.unpointed();
        }
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.choose()
    }
}
