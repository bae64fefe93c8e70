pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// The supplier's page beside the matching page of ours, with the findings marked.
FocusScope {
    id: root

    required property CanvasState state
    readonly property comparison comparison: root.state.comparison

    Accessible.role: Accessible.Pane
    Accessible.name: "Compare pages"

    CanvasBar {
        id: bar
        width: parent.width
        state: root.state
    }
    Rectangle {
        id: desk
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        color: Theme.canvas

        readonly property size box: CanvasGeometry.sideBySideBox(width, height)

        Pane {
            x: 18
            y: 14
            visible: root.comparison.count > 0
            box: desk.box
            view: root.comparison.supplier
            dot: Theme.accent.plain

            BoxMarks {
                anchors.fill: parent
                state: root.state
            }
            DraftPin {
                visible: Store.hasDraftPin
                x: Store.draftPin.x * parent.width
                y: Store.draftPin.y * parent.height
            }
        }
        Pane {
            x: 18 + desk.box.width + 18
            y: 14
            visible: root.comparison.count > 0
            box: desk.box
            view: root.comparison.ours
            dot: Theme.tertiary
            missing: root.comparison.matched ? "" : root.comparison.missing
        }
        Label {
            anchors.centerIn: parent
            visible: root.state.ready && root.comparison.count === 0
            text: "No pages in this file."
            color: Theme.secondary
        }
    }
}
