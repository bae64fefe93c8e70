#pragma once

#include "launcherbadge.h"

#include <QDBusConnection>
#include <QString>

namespace vexal {

/// The badge by the LauncherEntry signal, which the docks of GNOME, KDE and others listen to. Without a session bus
/// nothing is shown.
class UnityLauncherBadge : public LauncherBadge
{
public:
    UnityLauncherBadge(const QDBusConnection &bus, const QString &applicationId);

    void show(int count) override;

private:
    QDBusConnection m_bus;
    QString m_entry;
    int m_shown = -1; ///< Nothing was said yet.
};

} // namespace vexal
