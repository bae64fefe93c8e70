pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// What lies over the whole window while it is open and has the keyboard: Escape and presses beside its content ask for
/// its end, and nothing under it feels the pointer. Afterwards the keyboard is back where it was.
FocusScope {
    id: root

    /// The item that it was opened from: it lies over that item's window.
    required property Item opener
    property bool open: false
    default property alias content: content.data

    /// It has opened and has the keyboard.
    signal opened
    signal dismissed

    property Item before: null

    parent: root.opener ? root.opener.Window.contentItem : null // they may go in any order
    anchors.fill: parent
    visible: root.opacity > 0
    enabled: false
    opacity: root.open ? 1 : 0

    Behavior on opacity {
        StandardFade {}
    }

    Keys.onEscapePressed: root.dismissed()
    onOpenChanged: root.settle()
    onParentChanged: root.settle()

    // While it is being made there is no window to lie over yet.
    function settle() {
        if (root.open && !root.enabled && root.parent) {
            root.before = root.opener.Window.activeFocusItem;
            root.enabled = true;
            root.forceActiveFocus();
            root.opened();
        } else if (!root.open && root.enabled) {
            if (root.activeFocus && root.before)
                root.before.forceActiveFocus();
            root.enabled = false;
        }
    }

    // The key that closes things closes what lies on top.
    OnAction {
        action: root.open ? Actions.close : null
        onTriggered: root.dismissed()
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onPressed: root.dismissed()
        onWheel: wheel => wheel.accepted = true
    }
    Item {
        id: content
        anchors.fill: parent
    }
}
