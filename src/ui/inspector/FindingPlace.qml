pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// A card's place among the others: the header of the group that begins with it, the card and the notes on it. The card
/// itself stands there only while it is `built`; without, its room is kept, and nothing of it is in a frame.
FocusScope {
    id: root

    required property findingRow row
    required property int index
    required property InspectorState state
    property bool compact: false
    property bool built: root.index < 6 && !root.compact
    /// How high the card was last, or may be.
    property real room: root.compact ? 76 : 150
    readonly property FindingCard card: cards.count > 0 ? cards.itemAt(0) as FindingCard : null
    readonly property bool begins: root.row.group.length > 0 && !root.compact
    readonly property real above: root.begins ? (root.index > 0 ? 6 : 0) + 15 + 7 : 0

    signal stepped(by: int)

    /// Goes to the card by keyboard.
    function enter() {
        root.built = true;
        root.card.forceActiveFocus(Qt.TabFocusReason);
    }

    // Without its card, the place stands for it where there is nothing to be seen.
    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.title
    Accessible.ignored: root.built
    Accessible.onPressAction: root.enter()

    implicitHeight: root.above + root.room

    When {
        active: root.begins
        GroupHeader {
            y: root.above - 22
            height: 15
            title: root.row.group
            reference: root.row.reference
        }
    }
    When {
        id: cards
        active: root.built
        FindingCard {
            y: root.above
            width: root.width
            focus: true
            row: root.row
            compact: root.compact
            onHeightChanged: root.room = height
            onFocusRequested: Store.focusFinding(root.row.key)
            onJudged: state => root.state.judge(root.row.key, state)
            onNoteRequested: Store.answerFinding(root.row.key)

            Keys.onUpPressed: root.stepped(-1)
            Keys.onDownPressed: root.stepped(1)

            NoteList {
                width: parent.width
                topPadding: count > 0 ? 9 : 0
                state: root.state
                model: root.state.notesOn(root.row.key)
            }
        }
    }
}
