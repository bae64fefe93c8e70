#pragma once

#include "opener.h"

#include <chrono>

namespace vexal {

/// Links by way of the platform, so that the window that is raised gets the focus; files by xdg-open, which tells
/// whether there was a program for them.
class DesktopOpener : public Opener
{
public:
    /// xdg-open that still runs after `patience` has become the viewer.
    explicit DesktopOpener(std::chrono::milliseconds patience = std::chrono::seconds(3));

    void openLink(const QUrl &link) override;
    void openFile(const QString &path, QObject *context, std::function<void(bool)> done) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace vexal
