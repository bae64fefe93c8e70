#pragma once

#include <QObject>
#include <QString>

namespace vexal {

/// The desktop's notifications: one of ours at a time.
class Notifications : public QObject
{
    Q_OBJECT

public:
    /// Tells the person something, in place of what was told before. A click on it opens the file of that id; an empty
    /// one opens the program alone.
    virtual void show(const QString &text, const QString &fileId) = 0;

    /// Takes back what was told, if it is still there.
    virtual void withdraw() = 0;

Q_SIGNALS:
    /// The person has clicked on what was told of that file.
    void opened(const QString &fileId);
};

} // namespace vexal
