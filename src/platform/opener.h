#pragma once

#include <QObject>
#include <QUrl>

#include <functional>

namespace vexal {

/// Opens things with the desktop's programs for them.
class Opener
{
public:
    virtual ~Opener() = default;

    /// Opens a link in the person's browser or mail program.
    virtual void openLink(const QUrl &link) = 0;

    /// Opens a file with the program for its type; `done` hears whether there was one, unless `context` has gone.
    virtual void openFile(const QString &path, QObject *context, std::function<void(bool)> done) = 0;
};

} // namespace vexal
