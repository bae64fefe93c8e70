#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vexal {
/// The letters that stand for a person without a photo: of the first and the last word of the name, in upper case.
/// Empty for a name without words.
QString initials(const QString &name);

/// The ground under a person's initials: the same for the same address in every run, readable under white text.
QColor faceColour(const QString &email);

/// The same for screens.
class Faces : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static QString initials(const QString &name) { return vexal::initials(name); }
    Q_INVOKABLE static QColor colour(const QString &email) { return faceColour(email); }
};
} // namespace vexal
