pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// A card in a column, at a place that it may be taken away from, with the title of the group that begins there.
FindingCard {
    id: root

    /// Null while it stands nowhere.
    property FindingPlace place: null
    readonly property bool begins: root.place !== null && root.place.begins

    y: root.place !== null ? root.place.above : 0
    // Its height says nothing before: it may be that of another row, or of none.
    onLaidOut: {
        if (root.place !== null)
            root.place.room = root.height;
    }

    // The notes on the finding are what is put into a card; this is beside them.
    data: [
        When {
            active: root.begins
            GroupHeader {
                y: -22
                height: 15
                title: root.row.group
                reference: root.row.reference
            }
        }
    ]
}
