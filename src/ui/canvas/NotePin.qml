pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// A note's pin: its tip is at the item's origin. It says its note to whoever points at it or presses it.
Item {
    id: root

    required property pinMark mark
    /// It can be seen, and feels the pointer.
    property bool live: true
    signal pressed

    /// Says the note at once; a note on a finding leads to that.
    function press() {
        Hints.tell(head, root.mark.text);
        root.pressed();
    }

    PinShape {
        id: head
        x: -width / 2
        y: -height
        color: Theme.accent.solid
        outline: Theme.onSolid
        scale: hover.hovered ? 1.08 : 1
        transformOrigin: Item.Bottom
        activeFocusOnTab: true

        Accessible.role: Accessible.Button
        Accessible.name: "Note " + root.mark.number
        Accessible.description: root.mark.text
        Accessible.focusable: true
        Accessible.onPressAction: root.press()
        Keys.onSpacePressed: root.press()
        Keys.onReturnPressed: root.press()
        Keys.onEnterPressed: root.press()
        onActiveFocusChanged: {
            if (!head.activeFocus)
                Hints.withdraw(head);
        }

        Behavior on scale {
            StandardMove {}
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            // In the middle of the head.
            y: 11.8 - height / 2
            text: root.mark.number
            size: 10.5
            weight: Font.Bold
            color: Theme.onSolid
            spoken: false
        }
        HoverHandler {
            id: hover
            enabled: root.live
        }
        TapHandler {
            enabled: root.live
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: root.press()
        }
        Hint {
            enabled: root.live
            text: root.mark.text
        }
        FocusRing {
            around: 12
        }
    }
}
