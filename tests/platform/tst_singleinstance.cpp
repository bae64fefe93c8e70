#include "privatebus.h"
#include "singleinstance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

bool hasBus = true; ///< Whether what is started has a session bus.

/// A folder of nobody else's, as the one that a login gives.
const QTemporaryDir &folder()
{
    static const QTemporaryDir folder;
    return folder;
}

/// A start of the program of its own.
class Peer
{
public:
    explicit Peer(const QStringList &urls = {}, const QString &meetingPlace = folder().path())
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        if (!hasBus)
            environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(INSTANCE_PEER), QStringList{meetingPlace} + urls);
    }
    ~Peer()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(10000))
            m_process.kill();
    }

    /// Ends it without a chance to tidy up.
    void crash()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// The next line that it says.
    QString says()
    {
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(10000))
                return u"nothing"_s;
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }

private:
    QProcess m_process;
};

QDBusMessage call(const QString &method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(u"org.vexal.Test-Peer"_s, u"/org/vexal/Test_Peer"_s,
                                                  u"org.freedesktop.Application"_s, method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message);
}

} // namespace

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void theFirstStartIsTheOne();
    void aSecondStartHandsItsUrlsOverAndEnds();
    void aSecondStartWithoutUrlsBringsTheFirstForward();
    void aUrlArrivesByteForByte();
    void ofTenStartsAtOnceOneIsTheOne();
    void theNextStartIsTheOneWhenTheFirstHasEnded();
    void theNextStartIsTheOneWhenTheFirstHasCrashed();
    void theSocketIsThePersonsAlone();
    void withNowhereToMeetAProgramIsAlone();
};

/// The desktop's own calls, which come by the bus alone.
class DesktopCallsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { hasBus = true; }
    void theDesktopMayOpenUrlsAndActivate();
};

void SingleInstanceTest::initTestCase_data()
{
    QTest::addColumn<bool>("bus");
    QTest::newRow("with a session bus") << true;
    QTest::newRow("without one") << false;
}

void SingleInstanceTest::init()
{
    QFETCH_GLOBAL(const bool, bus);
    hasBus = bus;
}

void SingleInstanceTest::theFirstStartIsTheOne()
{
    Peer first({u"vexal://signed-in"_s});
    QCOMPARE(first.says(), u"first"_s);
}

void SingleInstanceTest::aSecondStartHandsItsUrlsOverAndEnds()
{
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    Peer second({u"vexal://a"_s, u"vexal://b"_s});
    QCOMPARE(second.says(), u"second"_s);
    QCOMPARE(first.says(), u"opened vexal://a vexal://b"_s);
}

void SingleInstanceTest::aSecondStartWithoutUrlsBringsTheFirstForward()
{
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    QCOMPARE(Peer().says(), u"second"_s);
    QCOMPARE(first.says(), u"activated"_s);
}

void SingleInstanceTest::aUrlArrivesByteForByte()
{
    const QString url = u"vexal://signed-in?state=A%2BB&code=4%2F0Ad%20x&x=%C3%BC#f"_s;
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    QCOMPARE(Peer({url}).says(), u"second"_s);
    QCOMPARE(first.says(), "opened "_L1 + url);
}

void DesktopCallsTest::theDesktopMayOpenUrlsAndActivate()
{
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    QCOMPARE(call(u"Activate"_s, {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(first.says(), u"activated"_s);
    QCOMPARE(call(u"Open"_s, {QStringList{u"vexal://x"_s}, QVariantMap{{u"activation-token"_s, u"t"_s}}}).type(),
             QDBusMessage::ReplyMessage);
    QCOMPARE(first.says(), u"opened vexal://x"_s);
    QCOMPARE(call(u"ActivateAction"_s, {u"any"_s, QVariantList(), QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(first.says(), u"activated"_s);
}

void SingleInstanceTest::ofTenStartsAtOnceOneIsTheOne()
{
    std::vector<std::unique_ptr<Peer>> peers;
    peers.reserve(10);
    for (int i = 0; i < 10; ++i)
        peers.push_back(std::make_unique<Peer>(QStringList{u"vexal://%1"_s.arg(i)}));
    int ones = 0;
    Peer *one = nullptr;
    for (const auto &peer : peers) {
        if (peer->says() == "first"_L1) {
            ++ones;
            one = peer.get();
        }
    }
    QCOMPARE(ones, 1);
    for (int i = 0; i < 9; ++i)
        QVERIFY(one->says().startsWith("opened vexal://"_L1));
}

void SingleInstanceTest::theNextStartIsTheOneWhenTheFirstHasEnded()
{
    QCOMPARE(Peer().says(), u"first"_s);
    QCOMPARE(Peer().says(), u"first"_s);
}

void SingleInstanceTest::theNextStartIsTheOneWhenTheFirstHasCrashed()
{
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    first.crash();
    Peer next;
    QCOMPARE(next.says(), u"first"_s);
    QCOMPARE(Peer({u"vexal://a"_s}).says(), u"second"_s);
    QCOMPARE(next.says(), u"opened vexal://a"_s);
}

void SingleInstanceTest::theSocketIsThePersonsAlone()
{
    Peer first;
    QCOMPARE(first.says(), u"first"_s);
    const QFileInfo socket(folder().filePath(u"org.vexal.Test-Peer.socket"_s));
    QCOMPARE(socket.exists(), !hasBus); // where there is a bus, they meet there alone
    QVERIFY(!(socket.permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
}

void SingleInstanceTest::withNowhereToMeetAProgramIsAlone()
{
    QCOMPARE(Peer({}, folder().filePath(u"missing"_s)).says(), hasBus ? u"first"_s : u"alone"_s);
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    PrivateBus bus;
    SingleInstanceTest starts;
    DesktopCallsTest desktop;
    return QTest::qExec(&starts, count, arguments) | QTest::qExec(&desktop, count, arguments);
}

#include "tst_singleinstance.moc"
