#include "privatebus.h"
#include "singleinstance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A start of the program of its own.
class Peer
{
public:
    explicit Peer(const QStringList &arguments = {})
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(INSTANCE_PEER), arguments);
    }
    ~Peer()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(10000))
            m_process.kill();
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
    void theFirstStartIsTheOne();
    void aSecondStartHandsItsUrlsOverAndEnds();
    void aSecondStartWithoutUrlsBringsTheFirstForward();
    void aUrlArrivesByteForByte();
    void theDesktopMayOpenUrlsAndActivate();
    void ofTenStartsAtOnceOneIsTheOne();
    void theNextStartIsTheOneWhenTheFirstHasEnded();
    void withoutABusAProgramIsAlone();
};

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

void SingleInstanceTest::theDesktopMayOpenUrlsAndActivate()
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

void SingleInstanceTest::withoutABusAProgramIsAlone()
{
    vexal::SingleInstance instance(QDBusConnection(u"none"_s), u"org.vexal.Test"_s);
    QCOMPARE(instance.claim({}), vexal::SingleInstance::Role::Alone);
}

int main(int count, char **arguments)
{
    QCoreApplication application(count, arguments);
    PrivateBus bus;
    SingleInstanceTest test;
    return QTest::qExec(&test, count, arguments);
}

#include "tst_singleinstance.moc"
