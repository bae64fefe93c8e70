pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// Cards, one under the other. Only those that are in sight, or will soon be, are built: a page may have hundreds.
Stack {
    id: root

    required property InspectorState state
    /// The rows of `findingRow`.
    required property QtObject model
    /// What scrolls them.
    required property Flickable view
    property bool compact: false
    /// Nothing is built while the column is folded.
    property bool folded: false
    readonly property alias count: places.count

    /// How far beyond what is in sight cards are built, and how far it is scrolled before that is looked at again.
    readonly property int ahead: 600
    readonly property int stretch: Math.floor(root.view.contentY / 200)
    readonly property real sight: root.view.height

    /// What has the keyboard keeps its card out of sight as well.
    property FindingPlace kept: null

    spacing: 8
    onStretchChanged: root.build()
    onSightChanged: root.build()
    onFoldedChanged: root.build()
    onPlaced: root.build()
    onApproached: place => root.give(place as FindingPlace)
    onReceded: place => root.leave(place as FindingPlace)

    Accessible.role: Accessible.List
    Accessible.name: "Findings"

    /// Where the card of that index stands, built or not.
    function placeAt(index: int): Item {
        return places.itemAt(index);
    }
    /// Goes to the card by keyboard.
    function step(index: int) {
        const place = places.itemAt(index) as FindingPlace;
        if (!place)
            return;
        root.give(place);
        place.card.forceActiveFocus(Qt.TabFocusReason);
    }
    function build() {
        // What is not placed yet stands at the top, as if all of it were in sight.
        if (root.folded || !root.isSettled())
            return;
        root.release();
        const from = root.mapFromItem(root.view, 0, -root.ahead).y;
        root.look(from, from + root.sight + 2 * root.ahead);
    }
    /// Takes the card that was kept for the keyboard alone, once that is elsewhere.
    function release() {
        if (root.kept === null || root.kept.activeFocus)
            return;
        if (!root.isWithin(root.kept))
            root.take(root.kept);
        root.kept = null;
    }
    /// Has a card stand there: one that nobody needs, which shows another row at a fraction of what a new one costs.
    function give(place: FindingPlace) {
        if (place.card !== null)
            return;
        if (spare.children.length === 0)
            maker.createObject(spare, {"row": place.row});
        const card = spare.children[0] as StandingCard;
        card.row = place.row;
        card.place = place;
        card.parent = place;
        place.card = card;
    }
    function leave(place: FindingPlace) {
        if (place.activeFocus)
            root.kept = place;
        else
            root.take(place);
    }
    function take(place: FindingPlace) {
        if (place.card === null)
            return;
        const card = place.card as StandingCard;
        place.card = null;
        card.place = null;
        card.parent = spare;
    }

    FocusScope {
        id: spare
        visible: false
    }
    Component {
        id: maker
        StandingCard {
            id: card
            width: root.width
            compact: root.compact
            onFocusRequested: Store.focusFinding(card.row.key)
            onJudged: state => root.state.judge(card.row.key, state)
            onNoteRequested: Store.answerFinding(card.row.key)

            Keys.onUpPressed: root.step(card.place.index - 1)
            Keys.onDownPressed: root.step(card.place.index + 1)

            NoteList {
                width: parent.width
                topPadding: count > 0 ? 9 : 0
                state: root.state
                model: root.state.notesOn(card.row.key)
            }
        }
    }
    Repeater {
        id: places
        model: root.model
        onItemRemoved: (index, place) => root.take(place as FindingPlace)
        FindingPlace {
            id: place
            width: root.width
            compact: root.compact
            onIndexChanged: root.arrange()
            onSought: root.step(place.index)
        }
    }
}
