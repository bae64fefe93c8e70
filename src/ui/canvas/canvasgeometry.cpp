#include "canvasgeometry.h"

#include "compare.h"

namespace vexal {

QSizeF CanvasGeometry::sideBySideBox(qreal width, qreal height)
{
    return vexal::sideBySideBox({width, height});
}

QSizeF CanvasGeometry::fittedPage(QSizeF box, qreal aspect)
{
    return vexal::fittedPage(box, aspect);
}

QRectF CanvasGeometry::boxOnPane(QRectF box, qreal width, qreal height)
{
    return vexal::boxOnPane({box.x(), box.y(), box.width(), box.height()}, {width, height});
}

} // namespace vexal
