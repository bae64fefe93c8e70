#include "livestore.h"

#include <QEventLoop>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// A server on a bad day: its board changes all the time, and what it says of it is as often wrong as right.
class BadDay
{
public:
    explicit BadDay(quint32 seed)
        : m_chance(seed)
    {
        m_live.client.server.on("GET", "/api/state").react([this](const Received &request) {
            return spoilt(encode(m_live.board), request);
        });
        for (const FileItem &file : std::as_const(m_live.board.files)) {
            const QString id = file.id;
            m_live.client.server.on("GET", "/api/files/" + id.toUtf8()).react([this, id](const Received &request) {
                return spoilt(encode(m_live.details[id]), request);
            });
        }
    }

    void endure(int refreshes)
    {
        m_live.store.resume();
        for (int i = 1; i <= refreshes; ++i) {
            change();
            m_live.store.refresh(holdUntil([this] {
                ++m_ended;
                m_waiting.quit();
            }));
            if (roll(4) != 0) // Else the next one starts while this one is under way.
                waitFor(i);
        }
        waitFor(refreshes);
        QTRY_VERIFY(m_live.sleep.asleep());
    }

    void clearUp()
    {
        m_good = true;
        m_live.round();
    }

    LiveStore &live() { return m_live; }
    const QMap<int, int> &faults() const { return m_faults; }

private:
    int roll(int sides) { return std::uniform_int_distribution(0, sides - 1)(m_chance); }

    void waitFor(int ended)
    {
        while (m_ended < ended)
            m_waiting.exec();
    }

    void change()
    {
        if (roll(3) == 0)
            return;
        FileItem &file = m_live.board.files[roll(int(m_live.board.files.size()))];
        file.status = QStringList{u"new"_s, u"in_review"_s, u"reviewed"_s}[roll(3)];
        m_live.board.rev += 1;
        m_live.details[file.id].file.summary = QString::number(m_live.board.rev);
        if (roll(10) == 0)
            m_live.store.selectFile(file.id);
    }

    Answer spoilt(const QByteArray &body, const Received &request)
    {
        const int fault = m_good ? 99 : roll(16);
        m_faults[fault] += 1;
        switch (fault) {
        case 0:
            return Answer::closed();
        case 1:
            return Answer::raw("garbage");
        case 2:
            return Answer(500, QJsonObject{{u"error"_s, u"Not now."_s}});
        case 3:
            return Answer(200, body.first(body.size() / 2), {{"Etag", "\"half\""}});
        case 4:
            return Answer(200, body, {{"Etag", LiveStore::tagOf(body)}}).cutAfter(body.size() / 2);
        case 5:
            return Answer(200, body, {{"Etag", LiveStore::tagOf(body)}}).resetAfter(body.size() / 3);
        case 6:
            return Answer(200, body); // Without a tag.
        case 7:
            return Answer(200, body, {{"Etag", LiveStore::tagOf(body)}}).gzippedAndCut(7);
        case 8:
        case 9:
            return LiveStore::tagged(body, request).trickled(1 + body.size() / 8, std::chrono::milliseconds(2));
        case 10:
            return LiveStore::tagged(body, request).closing();
        default:
            return LiveStore::tagged(body, request);
        }
    }

    LiveStore m_live{aBoard({aFile(u"a"_s), aFile(u"b"_s), aFile(u"c"_s)})};
    std::mt19937 m_chance;
    bool m_good = false;
    int m_ended = 0;
    QEventLoop m_waiting;
    QMap<int, int> m_faults;
};

} // namespace

/// Long bad days.
class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aThousandBadRefreshesEndWithTheServersLastBoard_data()
    {
        QTest::addColumn<quint32>("seed");
        QTest::newRow("1") << quint32(1);
        QTest::newRow("2") << quint32(2);
    }

    void aThousandBadRefreshesEndWithTheServersLastBoard()
    {
        QFETCH(quint32, seed);
        BadDay day(seed);
        day.endure(1000);
        QVERIFY(day.faults().size() >= 16);
        day.clearUp();
        LiveStore &live = day.live();
        QCOMPARE(live.store.board(), live.board);
        QVERIFY(live.store.current());
        const QString id = live.store.current()->id;
        QCOMPARE(*live.store.detail(id), live.details[id]);
        QCOMPARE(live.store.problem(), std::nullopt);
        QVERIFY(live.store.busy().isEmpty());
        QVERIFY(live.store.signedIn());
        QCOMPARE(live.badge.shown.last(), live.store.newCount().value_or(u"0"_s).toInt());
    }
};

QTEST_GUILESS_MAIN(TestFaults)
#include "tst_faults.moc"
