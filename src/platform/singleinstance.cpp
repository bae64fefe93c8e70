#include "singleinstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QVariantMap>

#include <chrono>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto interfaceName = "org.freedesktop.Application"_L1;

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

    void Open(const QStringList &uris, const QVariantMap &)
    {
        QList<QUrl> urls;
        for (const QString &uri : uris)
            urls += QUrl(uri);
        Q_EMIT m_instance.opened(urls);
    }

    void ActivateAction(const QString &, const QVariantList &, const QVariantMap &) { Q_EMIT m_instance.activated(); }

private:
    SingleInstance &m_instance;
};

SingleInstance::SingleInstance(const QDBusConnection &bus, const QString &applicationId, QObject *parent)
    : QObject(parent)
    , m_bus(bus)
    , m_id(applicationId)
{
    new ApplicationInterface(*this);
}

SingleInstance::Role SingleInstance::claim(const QList<QUrl> &urls)
{
    if (!m_bus.isConnected())
        return Role::Alone;
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
    m_bus.call(call, QDBus::Block, int(std::chrono::milliseconds(std::chrono::seconds(5)).count()));
}

QString SingleInstance::path() const
{
    return u'/' + QString(m_id).replace(u'.', u'/').replace(u'-', u'_');
}

} // namespace vexal

#include "singleinstance.moc"
