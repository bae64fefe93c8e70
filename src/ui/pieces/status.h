#pragma once

#include "palette.h"

#include <QObject>
#include <QString>

namespace vexal {
/// What a file's status is called and which tone it wears.
struct StatusLook
{
    QString title;
    Tone::Value tone;
};

/// The look of a status as the board names it. One that is not known counts as reviewed.
StatusLook statusLook(QStringView status);

/// `statusLook` for screens.
class Status : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static QString title(const QString &status) { return statusLook(status).title; }
    Q_INVOKABLE static vexal::Tone::Value tone(const QString &status) { return statusLook(status).tone; }
};
} // namespace vexal
