#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace vexal {
/// The letters that stand for a person without a photo: of the first and the last word of the name, in upper case.
/// Empty for a name without words.
QString initials(const QString &name);

/// The ground under a person's initials, readable under white text: the colour that the board has for them ("#7A4E8C"),
/// darkened if need be, or else one that is the same for the same address in every run.
QColor faceColour(const QString &email, const QString &own = {});

/// The same for screens.
class Faces : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE static QString initials(const QString &name) { return vexal::initials(name); }
    Q_INVOKABLE static QColor colour(const QString &email, const QString &own) { return faceColour(email, own); }
};
} // namespace vexal
