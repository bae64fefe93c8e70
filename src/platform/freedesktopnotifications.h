#pragma once

#include "notifications.h"

#include <QDBusConnection>

#include <optional>

class QDBusMessage;

namespace vexal {

/// Notifications by org.freedesktop.Notifications. Without a session bus, or a server of them on it, nobody is told.
class FreedesktopNotifications : public Notifications
{
    Q_OBJECT

public:
    FreedesktopNotifications(const QDBusConnection &bus, const QString &applicationId);
    ~FreedesktopNotifications() override;

    void show(const QString &text, const QString &fileId) override;
    void withdraw() override;

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action);
    void activationToken(uint id, const QString &token);
    void notificationClosed(uint id, uint reason);

private:
    struct Told
    {
        QString text;
        QString fileId;
    };

    void goOn();
    void learnServer();
    void tell();
    void close();
    void ask(const QDBusMessage &call, void (FreedesktopNotifications::*answered)(const QDBusMessage &));
    void serverAnswered(const QDBusMessage &answer);
    void toldAnswered(const QDBusMessage &answer);

    QDBusConnection m_bus;
    QString m_application;
    std::optional<bool> m_readsMarkup; ///< Whether the server takes bodies for markup; not known before it was asked.
    std::optional<Told> m_next;        ///< What is to be told as soon as the server has answered.
    QString m_fileId;                  ///< What a click opens.
    uint m_id = 0;                     ///< The server's name for what is on the screen; 0: nothing is.
    bool m_wanted = false;             ///< What was told last has not been taken back.
    bool m_asking = false;             ///< The server has not answered yet.
};

} // namespace vexal
