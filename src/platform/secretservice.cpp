#include "secretservice.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto busName = "org.freedesktop.secrets"_L1;
constexpr auto root = "/org/freedesktop/secrets"_L1;

using Attributes = QMap<QString, QString>;
using Paths = QList<QDBusObjectPath>;

SecretService::Item::Service presence(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::NoError:
        return SecretService::Item::Service::There;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return SecretService::Item::Service::Silent;
    default:
        return SecretService::Item::Service::None;
    }
}

} // namespace

SecretService::SecretService(const QDBusConnection &bus, const QString &service, const QString &account,
                             QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_service(service)
    , m_account(account)
{
    qDBusRegisterMetaType<Attributes>();
    if (!m_bus.isConnected())
        return;
    listen("org.freedesktop.Secret.Service", "CollectionChanged");
    listen("org.freedesktop.Secret.Collection", "ItemCreated");
    listen("org.freedesktop.Secret.Collection", "ItemChanged");
    listen("org.freedesktop.Secret.Collection", "ItemDeleted");
    auto *watcher = new QDBusServiceWatcher(busName, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &SecretService::changed);
}

void SecretService::listen(const char *interface, const char *member)
{
    m_bus.connect(busName, {}, QLatin1StringView(interface), QLatin1StringView(member), this, SIGNAL(changed()));
}

void SecretService::look(std::function<void(Item)> done)
{
    if (!m_bus.isConnected()) {
        QTimer::singleShot(0, this, [done = std::move(done)] { done({}); });
        return;
    }
    auto call = QDBusMessage::createMethodCall(busName, root, u"org.freedesktop.Secret.Service"_s, u"SearchItems"_s);
    call << QVariant::fromValue(Attributes{{u"user"_s, m_account}, {u"server"_s, m_service}});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, done = std::move(done)] {
        watcher->deleteLater();
        const QDBusPendingReply<Paths, Paths> reply = *watcher;
        if (reply.isError())
            return done({.service = presence(reply.error())});
        const bool open = !reply.argumentAt<0>().isEmpty();
        if (open || !reply.argumentAt<1>().isEmpty())
            return done({.service = Item::Service::There, .found = true, .locked = !open});
        lookForPlace(done);
    });
}

void SecretService::lookForPlace(std::function<void(Item)> done)
{
    auto call = QDBusMessage::createMethodCall(busName, root + "/aliases/default"_L1,
                                               u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << u"org.freedesktop.Secret.Collection"_s << u"Locked"_s;
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        // Without a default collection the person is asked to make one.
        done({.service = Item::Service::There, .locked = reply.isError() || reply.value().variant().toBool()});
    });
}

} // namespace vexal
