pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// The findings that ask for nothing: one line that sums them up, their cards folded under it.
Column {
    id: root

    required property InspectorState state
    required property string summary
    required property Flickable view
    property bool open: false

    signal toggled

    /// Where the card of that index stands.
    function placeAt(index: int): Item {
        return cards.placeAt(index);
    }

    FoldLine {
        width: parent.width
        text: root.summary
        open: root.open
        onClicked: root.toggled()
    }
    Item {
        id: fold
        readonly property real unfolded: cards.height + 8
        width: parent.width
        height: root.open ? fold.unfolded : 0
        visible: height > 0
        opacity: root.open ? 1 : 0
        clip: height !== fold.unfolded

        Behavior on height {
            StandardMove {}
        }
        Behavior on opacity {
            StandardFade {}
        }
        CardColumn {
            id: cards
            y: 8
            width: parent.width
            state: root.state
            model: root.state.settled
            view: root.view
            compact: true
            folded: !root.open
        }
    }
}
