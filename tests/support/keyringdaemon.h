#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A real gnome-keyring on the session bus of this process, with a keyring of its own that is open at first.
class KeyringDaemon
{
public:
    KeyringDaemon();
    ~KeyringDaemon();

    /// Starts it, again if need be, on the same keyring.
    void start();
    void stop();

    void lock();
    void unlock();

    /// It stays where it is and answers nobody, until it is thawed.
    void freeze();
    void thaw();

    /// The secrets that it holds under the service and the account, as another program sees them; only while it is
    /// open.
    QStringList secrets(const QString &service, const QString &account) const;

    /// Puts a secret there, or removes it, as another program does.
    void put(const QString &service, const QString &account, const QString &secret) const;
    void remove(const QString &service, const QString &account) const;

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
};
