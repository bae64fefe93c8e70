#include "freedesktopnotifications.h"
#include "privatebus.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusContext>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;
using vexal::FreedesktopNotifications;

namespace {

struct Shown
{
    QString application, icon, summary, body;
    QStringList actions;
    QVariantMap hints;
};

/// A desktop's server of notifications, on the bus while it lives. What is on the screen stands in `shown`.
class Server : public QObject
{
    Q_OBJECT

public:
    Server();
    ~Server() override
    {
        m_bus.unregisterObject(path);
        m_bus.unregisterService(name);
        QDBusConnection::disconnectFromBus(u"server"_s);
    }

    void say(const QString &signal, uint id, const QVariant &what)
    {
        auto message = QDBusMessage::createSignal(path, name, signal);
        message << id << what;
        m_bus.send(message);
    }
    QStringList bodies() const
    {
        QStringList all;
        for (const Shown &notification : shown)
            all += notification.body;
        return all;
    }

    QMap<uint, Shown> shown;
    QStringList capabilities{u"body"_s, u"actions"_s};
    int told = 0;
    uint last = 0;

private:
    const QString path = u"/org/freedesktop/Notifications"_s;
    const QString name = u"org.freedesktop.Notifications"_s;
    QDBusConnection m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"server"_s);
};

class ServerInterface : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit ServerInterface(Server &server)
        : QDBusAbstractAdaptor(&server)
        , m_server(server)
    {
    }

public Q_SLOTS:
    QStringList GetCapabilities() { return m_server.capabilities; }
    uint Notify(const QString &application, uint replaces, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int)
    {
        const uint id = replaces != 0 ? replaces : ++m_server.last;
        m_server.shown.insert(id, {application, icon, summary, body, actions, hints});
        ++m_server.told;
        return id;
    }
    void CloseNotification(uint id) { m_server.shown.remove(id); }

private:
    Server &m_server;
};

Server::Server()
{
    new ServerInterface(*this);
    m_bus.registerObject(path, this, QDBusConnection::ExportAdaptors);
    if (!m_bus.registerService(name))
        qFatal("There is another server on the bus.");
}

} // namespace

class NotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDBusConnection::sessionBus().connect(u"org.freedesktop.Notifications"_s, {},
                                                      u"org.freedesktop.Notifications"_s, u"ActionInvoked"_s, this,
                                                      SLOT(hearClick())));
    }
    void init()
    {
        m_clicksHeard = 0;
        m_server = std::make_unique<Server>();
        m_ours = std::make_unique<FreedesktopNotifications>(QDBusConnection::sessionBus(), u"org.vexal.Vexal"_s);
    }
    void cleanup()
    {
        m_ours.reset();
        m_server.reset();
    }

    void itSaysWhoWhatAndHowToOpenIt();
    void theNextReplacesItInsteadOfStacking();
    void manyAtOnceAreOneToo();
    void whatWasTakenBackIsGone();
    void whatIsTakenBackBeforeItIsThereNeverStays();
    void markupIsReadAsWritten_data();
    void markupIsReadAsWritten();
    void aClickOpensTheFile();
    void aClickOnAnothersNotificationOpensNothing();
    void whatThePersonClosedIsNotReplaced();
    void theTokenOfAClickIsHandedOn();
    void theEndOfTheProgramTakesItBack();
    void withoutAServerNobodyIsTold();
    void withoutABusNobodyIsTold();

public Q_SLOTS:
    void hearClick() { ++m_clicksHeard; }

private:
    int m_clicksHeard = 0; ///< What came before a click on the same connection has been heard with it.
    std::unique_ptr<Server> m_server;
    std::unique_ptr<FreedesktopNotifications> m_ours;
};

void NotificationsTest::itSaysWhoWhatAndHowToOpenIt()
{
    m_ours->show(u"Teo: Look at the moon"_s, u"f1"_s);
    QTRY_COMPARE(m_server->shown.size(), 1);
    const Shown shown = m_server->shown.first();
    QCOMPARE(shown.application, u"Vexal"_s);
    QCOMPARE(shown.icon, u"org.vexal.Vexal"_s);
    QCOMPARE(shown.summary, u"Vexal"_s);
    QCOMPARE(shown.body, u"Teo: Look at the moon"_s);
    QCOMPARE(shown.actions, (QStringList{u"default"_s, u"Open"_s}));
    QCOMPARE(shown.hints.value(u"desktop-entry"_s), u"org.vexal.Vexal"_s);
}

void NotificationsTest::theNextReplacesItInsteadOfStacking()
{
    m_ours->show(u"one"_s, u"f1"_s);
    QTRY_COMPARE(m_server->bodies(), QStringList{u"one"_s});
    m_ours->show(u"two"_s, u"f2"_s);
    QTRY_COMPARE(m_server->bodies(), QStringList{u"two"_s});
}

void NotificationsTest::manyAtOnceAreOneToo()
{
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
        m_ours->show(text, {});
    QTRY_COMPARE(m_server->bodies(), QStringList{u"three"_s});
}

void NotificationsTest::whatWasTakenBackIsGone()
{
    m_ours->show(u"one"_s, {});
    QTRY_COMPARE(m_server->shown.size(), 1);
    m_ours->withdraw();
    QTRY_COMPARE(m_server->shown.size(), 0);
    m_ours->show(u"two"_s, {});
    QTRY_COMPARE(m_server->bodies(), QStringList{u"two"_s});
    QCOMPARE(m_server->last, 2U);
}

void NotificationsTest::whatIsTakenBackBeforeItIsThereNeverStays()
{
    m_ours->show(u"known"_s, {});
    QTRY_COMPARE(m_server->told, 1);
    m_ours->show(u"on its way"_s, {});
    m_ours->withdraw();
    QTRY_COMPARE(m_server->shown.size(), 0);
}

void NotificationsTest::markupIsReadAsWritten_data()
{
    QTest::addColumn<QStringList>("capabilities");
    QTest::addColumn<QString>("body");
    QTest::newRow("plain") << QStringList{u"body"_s} << u"Teo: 3 < 4 & <b>so</b>"_s;
    QTest::newRow("markup") << QStringList{u"body"_s, u"body-markup"_s}
                            << u"Teo: 3 &lt; 4 &amp; &lt;b&gt;so&lt;/b&gt;"_s;
}

void NotificationsTest::markupIsReadAsWritten()
{
    QFETCH(QStringList, capabilities);
    QFETCH(QString, body);
    m_server->capabilities = capabilities;
    m_ours->show(u"Teo: 3 < 4 & <b>so</b>"_s, {});
    QTRY_COMPARE(m_server->bodies(), QStringList{body});
}

void NotificationsTest::aClickOpensTheFile()
{
    QSignalSpy opened(m_ours.get(), &FreedesktopNotifications::opened);
    m_ours->show(u"one"_s, u"f1"_s);
    QTRY_COMPARE(m_server->shown.size(), 1);
    m_ours->show(u"two"_s, u"f2"_s);
    QTRY_COMPARE(m_server->bodies(), QStringList{u"two"_s});
    // The server's answer arrives before what it says next.
    m_server->say(u"ActionInvoked"_s, m_server->last, u"default"_s);
    QTRY_COMPARE(opened.size(), 1);
    QCOMPARE(opened.first().first(), u"f2"_s);
}

void NotificationsTest::aClickOnAnothersNotificationOpensNothing()
{
    QSignalSpy opened(m_ours.get(), &FreedesktopNotifications::opened);
    m_ours->show(u"one"_s, u"f1"_s);
    QTRY_COMPARE(m_server->shown.size(), 1);
    m_server->say(u"ActionInvoked"_s, m_server->last + 1, u"default"_s);
    m_server->say(u"ActionInvoked"_s, m_server->last, u"snooze"_s);
    m_server->say(u"ActionInvoked"_s, m_server->last, u"default"_s);
    QTRY_COMPARE(opened.size(), 1);
}

void NotificationsTest::whatThePersonClosedIsNotReplaced()
{
    QSignalSpy opened(m_ours.get(), &FreedesktopNotifications::opened);
    m_ours->show(u"one"_s, u"f1"_s);
    QTRY_COMPARE(m_server->shown.size(), 1);
    m_server->shown.clear();
    m_server->say(u"NotificationClosed"_s, 1, 2U);
    m_server->say(u"ActionInvoked"_s, 1, u"default"_s);
    QTRY_COMPARE(m_clicksHeard, 1);
    m_ours->show(u"two"_s, u"f2"_s);
    QTRY_COMPARE(m_server->last, 2U);
    m_server->say(u"ActionInvoked"_s, 2, u"default"_s);
    QTRY_COMPARE(opened.size(), 1);
    QCOMPARE(opened.first().first(), u"f2"_s);
}

void NotificationsTest::theTokenOfAClickIsHandedOn()
{
    m_ours->show(u"one"_s, u"f1"_s);
    QTRY_COMPARE(m_server->shown.size(), 1);
    m_server->say(u"ActivationToken"_s, m_server->last, u"token-7"_s);
    QTRY_COMPARE(qEnvironmentVariable("XDG_ACTIVATION_TOKEN"), u"token-7"_s);
}

void NotificationsTest::theEndOfTheProgramTakesItBack()
{
    m_ours->show(u"one"_s, {});
    QTRY_COMPARE(m_server->shown.size(), 1);
    // Its answer has been heard when a second one replaces it.
    m_ours->show(u"two"_s, {});
    QTRY_COMPARE(m_server->bodies(), QStringList{u"two"_s});
    m_ours.reset();
    QTRY_COMPARE(m_server->shown.size(), 0);
}

void NotificationsTest::withoutAServerNobodyIsTold()
{
    m_server.reset();
    m_ours->show(u"lost"_s, {});
    m_server = std::make_unique<Server>();
    QTRY_VERIFY((m_ours->show(u"heard"_s, {}), m_server->told > 0));
    QCOMPARE(m_server->bodies(), QStringList{u"heard"_s});
}

void NotificationsTest::withoutABusNobodyIsTold()
{
    FreedesktopNotifications none(QDBusConnection(u"none"_s), u"a"_s);
    none.show(u"lost"_s, {});
    none.withdraw();
    QCOMPARE(m_server->told, 0);
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    PrivateBus bus;
    NotificationsTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_notifications.moc"
