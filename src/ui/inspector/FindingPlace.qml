pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Inspector

/// A card's place among the others: holds the card, while it has one, and its room. There may be hundreds; without a card
/// nothing of it is in a frame.
FocusScope {
    id: root

    required property findingRow row
    required property int index
    property bool compact: false
    /// The card that stands there.
    property FindingCard card: null
    /// How high the card was last, or may be.
    property real room: root.compact ? 76 : 150
    /// A group begins with it, whose title stands over the card.
    readonly property bool begins: root.row.group.length > 0 && !root.compact
    readonly property real above: root.begins ? (root.index > 0 ? 6 : 0) + 15 + 7 : 0

    /// Somebody wants to go to the card, which may not stand there yet.
    signal sought

    implicitHeight: root.above + root.room
    onRowChanged: {
        if (root.card !== null)
            root.card.row = root.row;
    }

    // Without its card, the place stands for it where there is nothing to be seen.
    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.title
    Accessible.ignored: root.card !== null
    Accessible.onPressAction: root.sought()
}
