#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QString>

namespace vexal {

/// A text with the run of it that differs from its other side. A run of no length marks nothing.
class Passage
{
    Q_GADGET
    QML_VALUE_TYPE(passage)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(int from MEMBER from FINAL)
    Q_PROPERTY(int length MEMBER length FINAL)

public:
    QString text;
    int from = 0;
    int length = 0;
    QString changed() const { return text.mid(from, length); }
    bool operator==(const Passage &) const = default;
};

/// The two sides of a difference.
struct Passages
{
    Passage ours;
    Passage theirs;
    bool operator==(const Passages &) const = default;
};

/// Two texts and, in each, the words between those that they begin and end with in common. A single number that changed
/// is marked digit by digit. Of long texts only the surroundings of what changed are kept, "…" standing for the rest.
Passages passages(const QString &ours, const QString &theirs);

} // namespace vexal
