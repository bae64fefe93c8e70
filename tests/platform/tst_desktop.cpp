#include "applicationpresence.h"
#include "deployment.h"
#include "hostname.h"
#include "privatebus.h"
#include "systemnetworkpresence.h"
#include "unitylauncherbadge.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QNetworkInterface>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// Hears the badge as a dock does.
class Dock : public QObject
{
    Q_OBJECT

public:
    Dock()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"dock"_s))
    {
        m_bus.connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, this,
                      SLOT(hear(QString, QVariantMap, QDBusMessage)));
    }
    ~Dock() override { QDBusConnection::disconnectFromBus(u"dock"_s); }

    QStringList heard;
    QStringList senders;

public Q_SLOTS:
    void hear(const QString &entry, const QVariantMap &properties, const QDBusMessage &message)
    {
        heard += u"%1 %2 %3"_s.arg(entry, properties.value(u"count"_s).toString(),
                                   properties.value(u"count-visible"_s).toString());
        counts += properties.value(u"count"_s);
        senders += message.path();
    }

public:
    QVariantList counts;

private:
    QDBusConnection m_bus;
};

} // namespace

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBadgeSaysItsCountToTheDock();
    void theSameCountIsSaidOnce();
    void withoutABusThereIsNoBadge();
    void aNameThatThePersonGaveIsTheHostName();
    void withoutAGivenNameTheHostNameCounts();
    void withoutNetworkManagerAnInterfaceIsTheNetwork();
    void aWindowThatIsNotShownIsNotSeen();
    void anActiveWindowIsSeenUntilItIsMinimised();
    void whatTheDeploymentSettlesIsThere();
};

void DesktopTest::aBadgeSaysItsCountToTheDock()
{
    Dock dock;
    vexal::UnityLauncherBadge badge(QDBusConnection::sessionBus(), u"org.vexal.Vexal"_s);
    badge.show(3);
    badge.show(0);
    QTRY_COMPARE(dock.heard, (QStringList{u"application://org.vexal.Vexal.desktop 3 true"_s,
                                          u"application://org.vexal.Vexal.desktop 0 false"_s}));
    QCOMPARE(dock.counts[0].typeId(), int(QMetaType::LongLong));
    QCOMPARE(dock.senders[0], dock.senders[1]);
}

void DesktopTest::theSameCountIsSaidOnce()
{
    Dock dock;
    vexal::UnityLauncherBadge badge(QDBusConnection::sessionBus(), u"a"_s);
    badge.show(0);
    badge.show(2);
    badge.show(2);
    badge.show(1);
    QTRY_COMPARE(dock.heard.size(), 3);
    QCOMPARE(dock.heard.last(), u"application://a.desktop 1 true"_s);
}

void DesktopTest::withoutABusThereIsNoBadge()
{
    vexal::UnityLauncherBadge badge(QDBusConnection(u"none"_s), u"a"_s);
    badge.show(1);
}

void DesktopTest::aNameThatThePersonGaveIsTheHostName()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"machine-info"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("ICON_NAME=computer\nPRETTY_HOSTNAME=\"Mira’s desk\"\n");
    file.close();
    QCOMPARE(vexal::hostName(file.fileName()), u"Mira’s desk"_s);
}

void DesktopTest::withoutAGivenNameTheHostNameCounts()
{
    QTemporaryDir folder;
    QCOMPARE(vexal::hostName(folder.filePath(u"none"_s)), QSysInfo::machineHostName());
}

void DesktopTest::withoutNetworkManagerAnInterfaceIsTheNetwork()
{
    bool up = false;
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        const auto flags = interface.flags();
        up |= !(flags & QNetworkInterface::IsLoopBack) && (flags & QNetworkInterface::IsUp) &&
              (flags & QNetworkInterface::IsRunning) && !interface.addressEntries().isEmpty();
    }
    QCOMPARE(vexal::SystemNetworkPresence().connected(), up);
}

void DesktopTest::aWindowThatIsNotShownIsNotSeen()
{
    QWindow window;
    QVERIFY(!vexal::ApplicationPresence().seen());
}

void DesktopTest::anActiveWindowIsSeenUntilItIsMinimised()
{
    QWindow window;
    window.resize(200, 100);
    window.show();
    window.requestActivate();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(vexal::ApplicationPresence().seen());
    window.setWindowStates(Qt::WindowMinimized);
    QTRY_VERIFY(!vexal::ApplicationPresence().seen());
}

void DesktopTest::whatTheDeploymentSettlesIsThere()
{
    namespace deployment = vexal::deployment;
    for (QStringView value : {deployment::serverURL, deployment::emailDomain, deployment::applicationId,
                              deployment::version, deployment::dedication})
        QVERIFY(!value.isEmpty() && !value.contains(u'@'));
    QVERIFY(deployment::build > 0);
}

int main(int count, char **arguments)
{
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
    QGuiApplication application(count, arguments);
    PrivateBus bus;
    DesktopTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_desktop.moc"
