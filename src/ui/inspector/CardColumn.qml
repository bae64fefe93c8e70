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

    spacing: 8
    onStretchChanged: root.build()
    onSightChanged: root.build()
    onFoldedChanged: root.build()
    onPlaced: root.build()

    Accessible.role: Accessible.List
    Accessible.name: "Findings"

    /// Where the card of that index stands, built or not.
    function placeAt(index: int): Item {
        return places.itemAt(index);
    }
    /// Goes to the card by keyboard.
    function step(index: int) {
        const place = places.itemAt(index) as FindingPlace;
        if (place)
            place.enter();
    }
    function build() {
        if (root.folded)
            return;
        const from = root.mapFromItem(root.view, 0, -root.ahead).y;
        const to = from + root.sight + 2 * root.ahead;
        for (let i = 0; i < places.count; ++i) {
            const place = places.itemAt(i) as FindingPlace;
            const near = place.y < to && place.y + place.height > from;
            // What has the keyboard stays.
            if (place.built !== near)
                place.built = near || place.activeFocus;
        }
    }

    Repeater {
        id: places
        model: root.model
        FindingPlace {
            id: place
            width: root.width
            state: root.state
            compact: root.compact
            onIndexChanged: root.arrange()
            onStepped: by => root.step(place.index + by)
        }
    }
}
