pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// The findings' marks and the notes' pins over a page; as large as the page.
Item {
    id: root

    required property CanvasState state
    /// They show. Those that do not keep the keyboard, but nothing of them is felt under the pointer.
    property bool live: true
    /// The keyboard came to a mark at this place of the page, in fractions of it.
    signal reached(place: rect)

    Repeater {
        model: root.state.marks
        BoxMark {
            required property boxMark row
            anchors.fill: parent
            mark: row
            live: root.live
            onToggled: root.state.toggleFocus(row.key)
            onReached: root.reached(row.boxes[0])
        }
    }
    Repeater {
        model: root.state.pins
        NotePin {
            required property pinMark row
            x: row.place.x * root.width
            y: row.place.y * root.height
            mark: row
            live: root.live
            onPressed: {
                if (row.finding !== "")
                    Store.focusFinding(row.finding);
            }
        }
    }

    // The arrows go from mark to mark, Tab leaves them as well.
    Keys.onDownPressed: event => root.step(event, true)
    Keys.onRightPressed: event => root.step(event, true)
    Keys.onUpPressed: event => root.step(event, false)
    Keys.onLeftPressed: event => root.step(event, false)

    function step(event: var, forward: bool) {
        const from = root.Window.activeFocusItem;
        const next = from ? from.nextItemInFocusChain(forward) : null;
        event.accepted = next !== null && root.holds(next);
        if (event.accepted)
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    }

    function holds(item: Item): bool {
        for (let above = item; above; above = above.parent) {
            if (above === root)
                return true;
        }
        return false;
    }
}
