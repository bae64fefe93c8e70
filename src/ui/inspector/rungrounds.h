#pragma once

#include <QObject>
#include <QQuickTextDocument>
#include <QRectF>
#include <QtQml/qqmlregistration.h>

namespace vexal {

/// Where runs of a shown text stand, so that a ground can be laid under them.
class RunGrounds : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// One rectangle for each line that the run touches, in the text item's points; none for a run of no length.
    Q_INVOKABLE static QList<QRectF> of(QQuickTextDocument *document, int from, int length);
};

} // namespace vexal
