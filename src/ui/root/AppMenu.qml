pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Everything that the program can be asked for, in sections, under the button at the product's name or, where there is
/// none, under the window's own buttons.
Overlay {
    id: root

    /// The row that the keyboard or the pointer is on; -1 for none.
    property int current: -1
    readonly property int margin: 8
    property real rowWidth: 200

    Accessible.role: Accessible.PopupMenu
    Accessible.name: "Menu"

    onOpened: {
        root.current = -1;
        root.step(1);
        root.place();
    }
    onCurrentChanged: {
        const row = rows.itemAt(root.current) as AppMenuRow;
        if (row)
            view.show(row.y, row.y + row.height);
    }
    Keys.onDownPressed: root.step(1)
    Keys.onUpPressed: root.step(-1)
    Keys.onReturnPressed: root.choose(root.current)
    Keys.onEnterPressed: root.choose(root.current)
    Keys.onSpacePressed: root.choose(root.current)
    Keys.onTabPressed: root.dismissed()
    Keys.onBacktabPressed: root.dismissed()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (!event.accepted)
            return;
        root.current = -1;
        root.step(event.key === Qt.Key_Home ? 1 : -1);
    }

    /// Goes on to the next row in that direction that can be chosen, around the ends.
    function step(by: int) {
        const count = rows.count;
        let at = root.current < 0 && by < 0 ? count : root.current;
        for (let tried = 0; tried < count; ++tried) {
            at = (at + by + count) % count;
            if ((rows.itemAt(at) as AppMenuRow).choosable) {
                root.current = at;
                return;
            }
        }
    }

    function choose(index: int) {
        const row = rows.itemAt(index) as AppMenuRow;
        if (!row || !row.choosable)
            return;
        root.dismissed();
        row.modelData.trigger();
    }

    function place() {
        const at = root.opener.mapToItem(root, 0, root.opener.height + 2);
        panel.x = Math.round(Math.max(root.margin, at.x - 4));
        panel.y = Math.round(at.y);
    }

    Floating {
        id: panel
        objectName: "panel"
        width: root.rowWidth + 10
        height: Math.min(column.height + 10, root.height - y - root.margin)
        radius: 10

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        Flickable {
            id: view
            x: 5
            y: 5
            width: root.rowWidth
            height: parent.height - 10
            contentHeight: column.height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive

            function show(top: real, bottom: real) {
                contentY = Math.max(0, Math.min(contentY, top), bottom - height);
            }

            Column {
                id: column
                Repeater {
                    id: rows
                    model: Actions.all

                    AppMenuRow {
                        current: index === root.current
                        width: root.rowWidth
                        before: index === 0 ? "" : Actions.all[index - 1].section
                        onLeastChanged: root.rowWidth = Math.max(root.rowWidth, least)
                        onPointed: root.current = choosable ? index : -1
                        onUnpointed: root.current = -1
                        onChosen: root.choose(index)
                    }
                }
            }
        }
    }
}
