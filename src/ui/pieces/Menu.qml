pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A few things that can be done, listed under the button that opened them.
Overlay {
    id: root

    required property list<string> titles
    /// The one that cannot be taken back, set off by its colour; -1 for none.
    property int destructive: -1
    /// A rule sets this one and those after it off from the others; -1 for none.
    property int ruled: -1
    /// The one that the keyboard or the pointer is on; -1 for none.
    property int current: -1

    signal chosen(index: int)

    readonly property int margin: 8
    property real rowWidth: 112

    Accessible.role: Accessible.PopupMenu
    Accessible.name: (root.opener as Pressable)?.name ?? ""

    onOpened: {
        root.current = 0;
        root.place();
    }
    Keys.onDownPressed: root.current = (root.current + 1) % root.titles.length
    Keys.onUpPressed: root.current = (Math.max(root.current, 0) + root.titles.length - 1) % root.titles.length
    Keys.onReturnPressed: root.choose(root.current)
    Keys.onEnterPressed: root.choose(root.current)
    Keys.onSpacePressed: root.choose(root.current)
    Keys.onTabPressed: root.dismissed()
    Keys.onBacktabPressed: root.dismissed()

    function choose(index: int) {
        root.dismissed();
        if (index >= 0)
            root.chosen(index);
    }

    /// Under the opener, the trailing sides in line, or above it where there is no room; never outside the window.
    function place() {
        const at = root.opener.mapToItem(root, 0, 0);
        const trailing = at.x + root.opener.width - panel.width;
        const below = at.y + root.opener.height + 2;
        const fits = below + panel.height <= root.height - root.margin;
        panel.x = Math.round(Math.max(root.margin, Math.min(trailing, root.width - panel.width - root.margin)));
        panel.y = Math.round(fits ? below : at.y - panel.height - 2);
    }

    Floating {
        id: panel
        objectName: "panel"
        width: rows.width + 10
        height: rows.height + 10
        radius: 10

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        Column {
            id: rows
            x: 5
            y: 5
            Repeater {
                model: root.titles

                Item {
                    id: row
                    required property string modelData
                    required property int index
                    readonly property int above: row.index === root.ruled ? 9 : 0

                    width: root.rowWidth
                    height: choice.height + row.above

                    Rule {
                        visible: row.above > 0
                        x: 10
                        y: 4
                        width: parent.width - 20
                    }
                    MenuRow {
                        id: choice
                        objectName: "choice" + row.index
                        y: row.above
                        width: parent.width
                        title: row.modelData
                        destructive: row.index === root.destructive
                        current: row.index === root.current
                        onLeastChanged: root.rowWidth = Math.max(root.rowWidth, least)
                        onPointed: root.current = row.index
                        onUnpointed: root.current = -1
                        onChosen: root.choose(row.index)
                    }
                }
            }
        }
    }
}
