#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace vexal {

/// The Secret Service on the session bus, as far as it can be asked without ever prompting the person.
class SecretService : public QObject
{
    Q_OBJECT

public:
    /// What it says of one item.
    struct Item
    {
        enum class Service { NoBus, None, Silent, There };
        Service service = Service::NoBus;
        bool found = false;
        bool locked = false; ///< The item is; without one: nothing can be stored unless the person is asked.
    };

    SecretService(const QDBusConnection &bus, const QString &service, const QString &account,
                  QObject *parent = nullptr);

    /// Asks for the item; `done` follows in half a millisecond as a rule, and in a minute at the latest.
    void look(std::function<void(Item)> done);

Q_SIGNALS:
    /// Something was locked, opened, stored or deleted, or the service came or went.
    void changed();

private:
    void lookForPlace(std::function<void(Item)> done);
    void listen(const char *interface, const char *member);

    QDBusConnection m_bus;
    QString m_service;
    QString m_account;
};

} // namespace vexal
