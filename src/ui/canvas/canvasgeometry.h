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
    Q_INVOKABLE static QSizeF fittedPage(QSizeF box, qreal aspect);
    Q_INVOKABLE static QRectF boxOnPane(QRectF box, qreal width, qreal height);
};

} // namespace vexal
