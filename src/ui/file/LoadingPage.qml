pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// A bare sheet where the supplier's page will lie, as large as the canvas, while what is in the file is still to come.
Item {
    id: root

    /// Blob key of the file's thumbnail, which has the shape of a page.
    required property string thumb
    /// Width over height of a page whose thumbnail is not known either: a sheet of the A series.
    readonly property real commonAspect: 1 / Math.SQRT2
    readonly property real aspect: shape.pixels.height > 0 ? shape.pixels.width / shape.pixels.height : root.commonAspect
    readonly property int bar: 44
    readonly property size box: CanvasGeometry.sideBySideBox(root.width, root.height - root.bar)
    readonly property size page: CanvasGeometry.fittedPage(root.box, root.aspect)

    Accessible.role: Accessible.Indicator
    Accessible.name: "Loading the pages"

    RemoteImage {
        id: shape
        width: 30
        height: 38
        opacity: 0
        key: root.thumb
    }
    PageZoom {
        id: zoom
        box: root.box
        page: root.page
    }
    Outlined {
        readonly property rect sheet: zoom.factor >= 1 ? zoom.place(root.page) : Qt.rect(0, 0, 0, 0)
        objectName: "sheet"
        x: Theme.canvasSide + sheet.x
        y: root.bar + Theme.canvasFoot + Theme.labelRow + sheet.y
        width: sheet.width
        height: sheet.height
        color: Theme.card
    }
}
