pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// Holds the pictures that may be shown next, at the sizes at which they would be: nothing of it is seen.
Item {
    id: root

    required property CanvasState state
    required property size box
    /// Ours is laid over the supplier's page instead of standing beside it.
    required property bool single
    property bool difference: false
    /// What is seen is there, so that it is time for what may be.
    required property bool active

    visible: false

    Repeater {
        model: root.active ? root.state.ahead : null
        Item {
            id: page
            required property pageAhead row
            readonly property size fitted: CanvasGeometry.fittedPage(root.box, root.single ? page.row.frameAspect : page.row.aspect)

            RemoteImage {
                width: page.fitted.width
                height: page.fitted.height
                stretch: root.single && page.row.isOurs
                key: page.row.picture
            }
            RemoteImage {
                width: page.fitted.width
                height: page.fitted.height
                stretch: true
                key: root.difference && page.row.ours !== "" ? page.row.picture : ""
                difference: page.row.ours
            }
        }
    }
}
