#include "keyringdaemon.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>
#include <QDir>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

/// A secret as the Secret Service hands it over.
struct PlainSecret
{
    QDBusObjectPath session;
    QByteArray parameters;
    QByteArray value;
    QString type;
};
Q_DECLARE_METATYPE(PlainSecret)

QDBusArgument &operator<<(QDBusArgument &argument, const PlainSecret &secret)
{
    argument.beginStructure();
    argument << secret.session << secret.parameters << secret.value << secret.type;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PlainSecret &secret)
{
    argument.beginStructure();
    argument >> secret.session >> secret.parameters >> secret.value >> secret.type;
    argument.endStructure();
    return argument;
}

namespace {

const QString password = u"open sesame"_s;
constexpr auto busName = "org.freedesktop.secrets"_L1;
constexpr auto root = "/org/freedesktop/secrets"_L1;
constexpr auto keyring = "/org/freedesktop/secrets/collection/login"_L1;

using Attributes = QMap<QString, QString>;
using Paths = QList<QDBusObjectPath>;

bool isOnBus()
{
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(busName);
}

QDBusMessage call(const QString &path, const QString &interface, const QString &method, const QVariantList &arguments)
{
    auto call = QDBusMessage::createMethodCall(busName, path, interface, method);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().call(call);
}

bool answers()
{
    const QVariantList plain{u"plain"_s, QVariant::fromValue(QDBusVariant(QString()))};
    return call(root, u"org.freedesktop.Secret.Service"_s, u"OpenSession"_s, plain).type() ==
           QDBusMessage::ReplyMessage;
}

QDBusMessage ask(const QString &path, const QString &interface, const QString &method, const QVariantList &arguments)
{
    const QDBusMessage reply = call(path, interface, method, arguments);
    if (reply.type() != QDBusMessage::ReplyMessage)
        qFatal("The keyring refused %s: %s", qPrintable(method), qPrintable(reply.errorMessage()));
    return reply;
}

QDBusMessage askService(const QString &method, const QVariantList &arguments)
{
    return ask(root, u"org.freedesktop.Secret.Service"_s, method, arguments);
}

QDBusObjectPath plainSession()
{
    const auto reply = askService(u"OpenSession"_s, {u"plain"_s, QVariant::fromValue(QDBusVariant(QString()))});
    return reply.arguments().at(1).value<QDBusObjectPath>();
}

Attributes attributes(const QString &service, const QString &account)
{
    return {{u"user"_s, account}, {u"server"_s, service}};
}

/// With the marks by which the keychain library knows its own items.
Attributes marked(Attributes attributes)
{
    attributes.insert({{u"xdg:schema"_s, u"org.qt.keychain"_s}, {u"type"_s, u"plaintext"_s}});
    return attributes;
}

Paths itemsOf(const QString &service, const QString &account)
{
    const auto reply = askService(u"SearchItems"_s, {QVariant::fromValue(attributes(service, account))});
    return qdbus_cast<Paths>(reply.arguments().at(0));
}

} // namespace

KeyringDaemon::KeyringDaemon()
{
    qDBusRegisterMetaType<Attributes>();
    qDBusRegisterMetaType<PlainSecret>();
    start();
}

KeyringDaemon::~KeyringDaemon()
{
    stop();
}

void KeyringDaemon::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, m_folder.path());
    for (const auto &[variable, folder] : {std::pair{u"XDG_DATA_HOME"_s, u"data"_s},
                                           {u"XDG_CONFIG_HOME"_s, u"config"_s},
                                           {u"XDG_CACHE_HOME"_s, u"cache"_s},
                                           {u"XDG_RUNTIME_DIR"_s, u"run"_s}}) {
        QDir(m_folder.path()).mkpath(folder);
        environment.insert(variable, m_folder.filePath(folder));
    }
    QFile::setPermissions(m_folder.filePath(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_daemon.setProcessEnvironment(environment);
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.setStandardOutputFile(QProcess::nullDevice());
    // Now and then it dies of the first request after its start; then it is started again.
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        m_daemon.start(u"gnome-keyring-daemon"_s, {u"--foreground"_s, u"--unlock"_s, u"--components=secrets"_s});
        m_daemon.write(password.toUtf8());
        m_daemon.closeWriteChannel();
        if (!QTest::qWaitFor(isOnBus, 10000))
            qFatal("The keyring did not start.");
        if (answers())
            return;
        stop();
    }
    qFatal("The keyring died of its first request %d times.", attempts);
}

void KeyringDaemon::stop()
{
    thaw();
    m_daemon.kill();
    m_daemon.waitForFinished();
    // Else the next one is taken to be there before it is.
    if (!QTest::qWaitFor([] { return !isOnBus(); }, 10000))
        qFatal("The keyring did not go.");
}

void KeyringDaemon::lock()
{
    askService(u"Lock"_s, {QVariant::fromValue(Paths{QDBusObjectPath(keyring)})});
}

void KeyringDaemon::unlock()
{
    const PlainSecret secret{plainSession(), {}, password.toUtf8(), u"text/plain"_s};
    ask(root, u"org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface"_s, u"UnlockWithMasterPassword"_s,
        {QVariant::fromValue(QDBusObjectPath(keyring)), QVariant::fromValue(secret)});
}

void KeyringDaemon::freeze()
{
    ::kill(pid_t(m_daemon.processId()), SIGSTOP);
}

void KeyringDaemon::thaw()
{
    if (m_daemon.processId() != 0)
        ::kill(pid_t(m_daemon.processId()), SIGCONT);
}

QStringList KeyringDaemon::secrets(const QString &service, const QString &account) const
{
    QStringList secrets;
    const QVariant session = QVariant::fromValue(plainSession());
    for (const QDBusObjectPath &item : itemsOf(service, account)) {
        const auto reply = call(item.path(), u"org.freedesktop.Secret.Item"_s, u"GetSecret"_s, {session});
        if (reply.type() == QDBusMessage::ReplyMessage) // else it went meanwhile
            secrets += QString::fromUtf8(qdbus_cast<PlainSecret>(reply.arguments().at(0)).value);
    }
    return secrets;
}

void KeyringDaemon::put(const QString &service, const QString &account, const QString &secret) const
{
    const QVariantMap properties{
        {u"org.freedesktop.Secret.Item.Label"_s, u"A token"_s},
        {u"org.freedesktop.Secret.Item.Attributes"_s, QVariant::fromValue(marked(attributes(service, account)))},
    };
    const PlainSecret plain{plainSession(), {}, secret.toUtf8(), u"text/plain"_s};
    ask(keyring, u"org.freedesktop.Secret.Collection"_s, u"CreateItem"_s,
        {properties, QVariant::fromValue(plain), true});
}

void KeyringDaemon::remove(const QString &service, const QString &account) const
{
    for (const QDBusObjectPath &item : itemsOf(service, account))
        ask(item.path(), u"org.freedesktop.Secret.Item"_s, u"Delete"_s, {});
}
