pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// A file's place in the list: its row and the gap under it.
Item {
    id: root

    required property fileRow row
    required property int index
    readonly property bool current: root.ListView.isCurrentItem && root.ListView.view.activeFocus
    /// The keyboard came here with a click, which needs no ring to be found.
    property bool clicked: false
    onCurrentChanged: root.clicked = root.clicked && root.current

    width: ListView.view ? ListView.view.width - 16 : 0
    height: 56

    FileRow {
        width: parent.width
        row: root.row
        current: root.current
        ring: root.current && !root.clicked
        onSelected: additive => {
            root.ListView.view.currentIndex = root.index;
            root.ListView.view.forceActiveFocus(Qt.MouseFocusReason);
            root.clicked = true;
            Store.selectFile(root.row.key, additive);
        }
    }
}
