#pragma once

#include <QObject>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// The canvas's geometry for QML: the functions of compare.h, in points.
class CanvasGeometry : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static QSizeF sideBySideBox(qreal width, qreal height);
    Q_INVOKABLE static QSizeF singleBox(qreal width, qreal height);
    Q_INVOKABLE static QSizeF fittedPage(QSizeF box, qreal aspect);
    Q_INVOKABLE static QRectF boxOnPane(QRectF box, qreal width, qreal height);
    /// Where the page lies behind a crop around a box, in a frame of this size.
    Q_INVOKABLE static QRectF pageBehindCrop(const QList<double> &box, qreal aspect, qreal width, qreal height);
    Q_INVOKABLE static QRectF boxOnCrop(QRectF box, QRectF page);
    Q_INVOKABLE static qreal loupeHeight(qreal width);
};

} // namespace vexal
