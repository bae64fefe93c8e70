pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Canvas

/// The findings' marks over a page; as large as the page.
Item {
    id: root

    required property CanvasState state

    Repeater {
        model: root.state.marks
        BoxMark {
            required property boxMark row
            anchors.fill: parent
            mark: row
            onToggled: root.state.toggleFocus(row.key)
        }
    }
}
