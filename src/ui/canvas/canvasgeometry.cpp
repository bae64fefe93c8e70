#include "canvasgeometry.h"

#include "compare.h"

namespace vexal {

QSizeF CanvasGeometry::sideBySideBox(qreal width, qreal height)
{
    return vexal::sideBySideBox({width, height});
}

QSizeF CanvasGeometry::singleBox(qreal width, qreal height)
{
    return vexal::singleBox({width, height});
}

QSizeF CanvasGeometry::fittedPage(QSizeF box, qreal aspect)
{
    return vexal::fittedPage(box, aspect);
}

QRectF CanvasGeometry::boxOnPane(QRectF box, qreal width, qreal height)
{
    return vexal::boxOnPane({box.x(), box.y(), box.width(), box.height()}, {width, height});
}

QRectF CanvasGeometry::pageBehindCrop(const QList<double> &box, qreal aspect, qreal width, qreal height)
{
    return vexal::pageBehindCrop(box, aspect, {width, height});
}

QRectF CanvasGeometry::boxOnCrop(QRectF box, QRectF page)
{
    return vexal::boxOnCrop(box, page);
}

qreal CanvasGeometry::loupeHeight(qreal width)
{
    return vexal::loupeHeight(width);
}

} // namespace vexal
