pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// A card's place among the others: the header of the group that begins with it, the card and the notes on it.
Item {
    id: root

    required property findingRow row
    required property int index
    required property InspectorState state
    property bool compact: false
    readonly property Item card: card

    signal stepped(by: int)

    implicitHeight: card.y + card.height

    GroupHeader {
        id: header
        y: root.index > 0 ? 6 : 0
        visible: root.row.group.length > 0 && !root.compact
        title: root.row.group
        reference: root.row.reference
    }
    FindingCard {
        id: card
        y: header.visible ? header.y + header.height + 7 : 0
        width: root.width
        row: root.row
        compact: root.compact
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
