#include "tinyboard.h"
#include "wire.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vexal;

/// Many at once, and those who mean no good.
class CrowdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twentyClientsLoseNothing();
    void twentyReadersNeverSeeHalfAChange();
    void onlyOneOfManySyncsIsTaken();
    void aCodeIsGoodForOneOfMany();
    void garbageHurtsNobody();
    void aBoardStopsWhileItIsBusy();
    void aBoardThatWasStoppedIsServedAgainOnItsPort();
};

namespace {

constexpr int crowd = 20;

/// Runs \a each(number) on as many threads as there are in a crowd, and waits for all.
template <typename Each>
void together(Each each)
{
    std::vector<std::jthread> threads;
    threads.reserve(crowd);
    for (int i = 0; i < crowd; ++i)
        threads.emplace_back([i, &each] { each(i); });
}

} // namespace

void CrowdTest::twentyClientsLoseNothing()
{
    QTemporaryDir data;
    TinyBoard board(data.path());
    auto mira = board.mira();
    const auto token = board->signInAs(TinyBoard::teoEmail);
    const auto before = mira.board();
    constexpr int rounds = 10;
    std::atomic<int> taken = 0;
    together([&](int number) {
        Visitor visitor(board->port(), token);
        for (int i = 0; i < rounds; ++i) {
            const auto text = u"%1.%2"_s.arg(number).arg(i);
            taken +=
                visitor.post(u"/api/comments"_s, QJsonObject{{u"file_id"_s, u"f1"_s}, {u"text"_s, text}}).status == 200;
            visitor.get(u"/api/state"_s);
        }
    });
    QCOMPARE(taken, crowd * rounds);
    QSet<QString> texts;
    QSet<QString> ids;
    for (const Note &note : mira.file(u"f1"_s).comments) {
        texts.insert(note.text);
        ids.insert(note.id);
    }
    QCOMPARE(texts.size(), crowd * rounds + 1);
    QCOMPARE(ids.size(), crowd * rounds + 1);
    const auto after = mira.board();
    QCOMPARE(after.rev, before.rev + crowd * rounds);
    QCOMPARE(after.events[0].id, before.events[0].id + crowd * rounds);
    QCOMPARE(after.events.size(), 200);
    for (int i = 1; i < after.events.size(); ++i)
        QCOMPARE(after.events[i].id, after.events[i - 1].id - 1);
}

void CrowdTest::twentyReadersNeverSeeHalfAChange()
{
    TinyBoard board;
    const auto token = board->signInAs(TinyBoard::teoEmail);
    std::atomic<bool> isOver = false;
    std::atomic<int> torn = 0;
    std::atomic<int> read = 0;
    // It goes on until everybody has had the chance to see it at work.
    std::jthread writer([&] {
        for (int i = 0; i < 100 || read < crowd; ++i)
            board->review().setFindingState(TinyBoard::miraEmail, u"a"_s, i % 2 ? u"open"_s : u"issue"_s);
        isOver = true;
    });
    together([&](int) {
        Visitor visitor(board->port(), token);
        while (!isOver) {
            const auto detail = visitor.file(u"f1"_s);
            torn += (detail.findings[0].state == "issue"_L1) != (detail.file.tally->issues == 1) && detail.file.rev > 4;
            ++read;
        }
    });
    QCOMPARE(torn, 0);
    QVERIFY(read >= crowd);
}

void CrowdTest::onlyOneOfManySyncsIsTaken()
{
    TinyBoard board({}, std::chrono::seconds(60));
    const auto token = board->signInAs(TinyBoard::teoEmail);
    std::atomic<int> taken = 0;
    together([&](int) {
        taken += Visitor(board->port(), token).post(u"/api/jobs"_s, QJsonObject{{u"kind"_s, u"sync"_s}}).status == 200;
    });
    QCOMPARE(taken, 1);
    QCOMPARE(board->state(TinyBoard::teoEmail).jobs.size(), 1);
}

void CrowdTest::aCodeIsGoodForOneOfMany()
{
    TinyBoard board;
    const auto chosen = board.stranger().post(u"/signin"_s, "state=s&email=teo@lanternhouse.example",
                                              "application/x-www-form-urlencoded");
    const auto code = QString::fromUtf8(chosen.location.mid(chosen.location.indexOf("code=") + 5));
    std::atomic<int> taken = 0;
    together([&](int) {
        taken += board.stranger().post(u"/api/login/exchange"_s, QJsonObject{{u"code"_s, code}}).status == 200;
    });
    QCOMPARE(taken, 1);
}

void CrowdTest::garbageHurtsNobody()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto held = mira.get(u"/api/state"_s).tag;
    const QByteArrayList scraps = {"GET ",
                                   "POST ",
                                   "/api/blob/",
                                   "/api/state",
                                   " HTTP/1.1",
                                   "\r\n",
                                   "\r\n\r\n",
                                   "Host: localhost",
                                   "Content-Length: 5",
                                   "%00",
                                   "%",
                                   "..",
                                   "\xff\xfe",
                                   "{\"a\":",
                                   "Authorization: Bearer ",
                                   "If-None-Match: ",
                                   "Expect: 100-continue",
                                   "Connection: close"};
    QRandomGenerator random(7);
    for (int i = 0; i < 300; ++i) {
        QByteArray noise;
        for (int part = random.bounded(1, 40); part > 0; --part)
            noise += random.bounded(4) ? scraps[random.bounded(scraps.size())]
                                       : QByteArray(random.bounded(1, 90), char(random.bounded(256)));
        Wire wire(board->port());
        QVERIFY(wire.isConnected());
        wire.send(noise + "\r\n\r\n");
    }
    QCOMPARE(mira.get(u"/api/state"_s, held).status, 304);
}

void CrowdTest::aBoardStopsWhileItIsBusy()
{
    TinyBoard board;
    const auto token = board->signInAs(TinyBoard::teoEmail);
    std::atomic<int> answered = 0;
    std::jthread stopper([&] {
        while (answered < 50)
            std::this_thread::yield();
        board->stop();
    });
    together([&](int) {
        Visitor visitor(board->port(), token);
        while (visitor.get(u"/api/state"_s).status == 200)
            ++answered;
    });
    QVERIFY(answered >= 50);
}

void CrowdTest::aBoardThatWasStoppedIsServedAgainOnItsPort()
{
    TinyBoard board;
    auto mira = board.mira();
    QVERIFY(board->review().setStatus(TinyBoard::teoEmail, u"f1"_s, u"reviewed"_s));
    const auto port = board->port();
    const auto held = mira.get(u"/api/state"_s).tag;
    board->stop();
    QCOMPARE(mira.get(u"/api/state"_s).status, 0);
    QVERIFY(!board->start());
    QCOMPARE(board->port(), port);
    QCOMPARE(mira.get(u"/api/state"_s, held).status, 304);
}

QTEST_GUILESS_MAIN(CrowdTest)
#include "tst_crowd.moc"
