#include "singleinstance.h"

#include "meetingsocket.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QVariantMap>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal {

namespace {

constexpr auto interfaceName = "org.freedesktop.Application"_L1;
constexpr std::chrono::milliseconds patience = 5s; ///< For the first start to take what a later one hands over.

QList<QUrl> urlsFrom(const QStringList &uris)
{
    return {uris.cbegin(), uris.cend()};
}

} // namespace

/// The interface that desktops open applications through.
class ApplicationInterface : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationInterface(SingleInstance &instance)
        : QDBusAbstractAdaptor(&instance)
        , m_instance(instance)
    {
    }

public Q_SLOTS:
    void Activate(const QVariantMap &) { Q_EMIT m_instance.activated(); }

    void Open(const QStringList &uris, const QVariantMap &) { Q_EMIT m_instance.opened(urlsFrom(uris)); }

    void ActivateAction(const QString &, const QVariantList &, const QVariantMap &) { Q_EMIT m_instance.activated(); }

private:
    SingleInstance &m_instance;
};

SingleInstance::SingleInstance(const QDBusConnection &bus, const QString &applicationId, const QString &folder,
                               QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_id(applicationId)
    , m_folder(folder)
{
    new ApplicationInterface(*this);
}

SingleInstance::Role SingleInstance::claim(const QList<QUrl> &urls)
{
    return m_bus.isConnected() ? claimOnBus(urls) : claimInFolder(urls);
}

SingleInstance::Role SingleInstance::claimOnBus(const QList<QUrl> &urls)
{
    // The object comes first: whoever sees the name may call at once.
    m_bus.registerObject(path(), this, QDBusConnection::ExportAdaptors);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply = m_bus.interface()->registerService(
        m_id, QDBusConnectionInterface::DontQueueService, QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid())
        return Role::Alone;
    if (reply == QDBusConnectionInterface::ServiceRegistered)
        return Role::First;
    handOver(urls);
    return Role::Second;
}

void SingleInstance::handOver(const QList<QUrl> &urls)
{
    m_bus.unregisterObject(path());
    const auto method = urls.isEmpty() ? u"Activate"_s : u"Open"_s;
    auto call = QDBusMessage::createMethodCall(m_id, path(), interfaceName, method);
    if (!urls.isEmpty())
        call << QUrl::toStringList(urls, QUrl::FullyEncoded);
    call << QVariantMap{};
    m_bus.call(call, QDBus::Block, int(patience.count()));
}

SingleInstance::Role SingleInstance::claimInFolder(const QList<QUrl> &urls)
{
    auto *socket = new MeetingSocket(m_folder, m_id, this);
    connect(socket, &MeetingSocket::heard, this, [this](const QStringList &uris) {
        if (uris.isEmpty())
            Q_EMIT activated();
        else
            Q_EMIT opened(urlsFrom(uris));
    });
    switch (socket->openOrTell(QUrl::toStringList(urls, QUrl::FullyEncoded), patience)) {
    case MeetingSocket::Outcome::Opened:
        return Role::First;
    case MeetingSocket::Outcome::Delivered:
        return Role::Second;
    case MeetingSocket::Outcome::Unreachable:
        break;
    }
    return Role::Alone;
}

QString SingleInstance::path() const
{
    return u'/' + QString(m_id).replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace vexal

#include "singleinstance.moc"
