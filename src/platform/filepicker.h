#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

namespace vexal {

/// Lets the person choose a file.
class FilePicker
{
public:
    virtual ~FilePicker() = default;

    /// Shows `message` and the files whose names match one of `patterns`. `done` is told the path of the one that was
    /// chosen; it is not called when the person thinks better of it, nor once `context` has gone.
    virtual void pick(const QString &message, const QStringList &patterns, QObject *context,
                      std::function<void(const QString &)> done) = 0;
};

} // namespace vexal
