pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// A file's place in the list: its row and the gap under it.
Item {
    id: root

    required property fileRow row
    required property int index

    width: ListView.view ? ListView.view.width - 16 : 0
    height: 56

    FileRow {
        width: parent.width
        row: root.row
        current: root.ListView.isCurrentItem && root.ListView.view.activeFocus
        onSelected: additive => {
            root.ListView.view.currentIndex = root.index;
            Store.selectFile(root.row.key, additive);
        }
    }
}
