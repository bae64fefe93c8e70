#include "privatebus.h"
#include "systemnetworkpresence.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

class NetworkPresenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void whatNetworkManagerSaysCounts_data();
    void whatNetworkManagerSaysCounts();

private:
    QProcess m_manager;
};

void NetworkPresenceTest::initTestCase()
{
    m_manager.start(QStringLiteral(NETWORK_MANAGER_PEER), QStringList());
    QVERIFY(m_manager.waitForReadyRead(10000));
}

void NetworkPresenceTest::cleanupTestCase()
{
    m_manager.closeWriteChannel();
    QVERIFY(m_manager.waitForFinished(10000));
}

void NetworkPresenceTest::whatNetworkManagerSaysCounts_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<bool>("connected");
    QTest::newRow("disconnected") << QByteArray("20\n") << false;
    QTest::newRow("a local network") << QByteArray("50\n") << true;
    QTest::newRow("the whole network") << QByteArray("70\n") << true;
}

void NetworkPresenceTest::whatNetworkManagerSaysCounts()
{
    QFETCH(QByteArray, state);
    QFETCH(bool, connected);
    vexal::SystemNetworkPresence presence;
    m_manager.write(state);
    QTRY_COMPARE(presence.connected(), connected);
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    PrivateBus bus("DBUS_SYSTEM_BUS_ADDRESS");
    NetworkPresenceTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_networkpresence.moc"
