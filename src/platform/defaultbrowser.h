#pragma once

#include "browser.h"
#include "opener.h"

#include <QObject>
#include <QStringList>

#include <optional>

namespace vexal {

class DesktopEntry;

/// The browser that xdg-settings names as the person's default one. What it says is asked for without waiting.
class DefaultBrowser : public QObject, public Browser
{
    Q_OBJECT

public:
    /// Pages that no private window can be had for go through `opener`.
    explicit DefaultBrowser(Opener &opener, QObject *parent = nullptr);

    void openPrivately(const QUrl &page) override;

private:
    void open(const QString &entryName, const QUrl &page);

    Opener &m_opener;
};

/// The command that opens `page` in a private window of the browser that `entry` describes: by the action that the
/// entry has for it, else by the flag that this browser is known to take. Nothing when neither is known.
std::optional<QStringList> privateCommand(const DesktopEntry &entry, const QUrl &page);

} // namespace vexal
