#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A message bus of the test's own, on which no service is started unless the test starts it. It becomes the session
/// bus of this process and of those that the test starts, so it is made before anything asks for that one.
class PrivateBus
{
public:
    /// `variable` is that of the bus it stands in for.
    explicit PrivateBus(const char *variable = "DBUS_SESSION_BUS_ADDRESS");
    ~PrivateBus();

    QString address() const { return m_address; }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
};
