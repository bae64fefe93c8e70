#pragma once

#include "desktoplook.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>

namespace vexal {

/// The look as the desktop's settings portal gives it, live. Without a session bus or a portal it is the usual one.
class PortalLook : public DesktopLook
{
    Q_OBJECT

public:
    explicit PortalLook(const QDBusConnection &bus);

    bool known() const override { return m_known; }
    Look look() const override { return m_look; }

private Q_SLOTS:
    void settingChanged(const QString &space);

private:
    void ask();
    void beKnown();
    void take(const Look &look);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_portal;
    Look m_look;
    bool m_known = false;
};

} // namespace vexal
