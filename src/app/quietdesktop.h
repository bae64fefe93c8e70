#pragma once

#include "launcherbadge.h"
#include "notifications.h"

namespace vexal {

/// Counts nothing on anybody's desktop.
class NoBadge : public LauncherBadge
{
public:
    void show(int) override {}
};

/// Tells nobody of anything.
class NoNotifications : public Notifications
{
public:
    void show(const QString &, const QString &) override {}
    void withdraw() override {}
};

} // namespace vexal
