#pragma once

#include <QUrl>

namespace vexal {

/// Shows a page that shares nothing with the person's other pages, where the system can.
class Browser
{
public:
    virtual ~Browser() = default;

    /// Opens the page, in a private window of the default browser where it has one. Whether a window really comes
    /// cannot be known: the person needs another way to the page.
    virtual void openPrivately(const QUrl &page) = 0;
};

} // namespace vexal
