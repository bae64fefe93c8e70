pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// The other pages of the file on which something is open; nothing without any.
Column {
    id: root

    required property InspectorState state

    visible: rows.count > 0

    Divider {
        width: parent.width
        above: 2
        below: 12
    }
    SectionTitle {
        title: "Still open on other pages"
    }
    Repeater {
        id: rows
        model: root.state.others
        OtherPageRow {
            width: root.width
            onClicked: Store.turnPage(root.state.file, row.index)
        }
    }
}
