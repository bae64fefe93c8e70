import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// What the canvas does when it is asked by a key, a menu or a button.
Item {
    id: root

    required property CanvasState state
    required property PageZoom zoom
    /// The middle of a pane, and the supplier's page as it is fitted there.
    required property size box
    required property size page
    readonly property comparison comparison: root.state.comparison
    readonly property bool any: root.comparison.count > 0
    readonly property point middle: Qt.point(root.box.width / 2, root.box.height / 2)
    readonly property real step: 1.25

    OnAction {
        action: Actions.pinNote
        enabled: root.any
        onTriggered: Store.setPinning(!Store.pinning)
    }
    OnAction {
        action: Actions.previousPage
        enabled: root.comparison.index > 0
        onTriggered: root.state.turn(-1)
    }
    OnAction {
        action: Actions.nextPage
        enabled: root.comparison.index < root.comparison.count - 1
        onTriggered: root.state.turn(1)
    }
    OnAction {
        action: Actions.zoomIn
        enabled: root.any
        onTriggered: root.zoom.zoomBy(root.step, root.middle, root.page)
    }
    OnAction {
        action: Actions.zoomOut
        enabled: root.any
        onTriggered: root.zoom.zoomBy(1 / root.step, root.middle, root.page)
    }
    OnAction {
        action: Actions.fitPage
        enabled: root.any
        onTriggered: root.zoom.fit()
    }
    OnAction {
        action: Actions.actualSize
        enabled: root.any
        onTriggered: root.zoom.actual(root.middle, root.page)
    }
    OnAction {
        action: Actions.close
        enabled: Store.pinning || Store.focus !== ""
        onTriggered: {
            if (Store.pinning)
                Store.setPinning(false);
            else
                Store.clearFocus();
        }
    }
}
