#include "boardprocess.h"
#include "tinyboard.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The real program, killed and started again.
class SurvivalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aKilledBoardLosesNothingThatItAcknowledged();
    void aBoardKilledAsItFirstStartsStartsWhole();
    void aTerminatedBoardEndsCleanly();
    void aSyncThatWasKilledIsBegunAgain();
    void whatIsWrongIsSaid_data();
    void whatIsWrongIsSaid();

private:
    QTemporaryDir m_seed;
};

namespace {

/// Writes notes until the board dies; answers those that it acknowledged.
QStringList writeUntilItDies(int port, const QString &name, std::atomic<int> &acknowledged)
{
    QStringList texts;
    Visitor visitor(port);
    if (!visitor.signIn(TinyBoard::teoEmail))
        return texts;
    for (int i = 0;; ++i) {
        const auto text = name + u'.' + QString::number(i);
        if (visitor.post(u"/api/comments"_s, QJsonObject{{u"file_id"_s, u"f2"_s}, {u"text"_s, text}}).status != 200)
            return texts;
        texts.append(text);
        ++acknowledged;
    }
}

QStringList notesOn(Visitor &visitor, const QString &file)
{
    QStringList texts;
    for (const Note &note : visitor.file(file).comments)
        texts.append(note.text);
    return texts;
}

} // namespace

void SurvivalTest::initTestCase()
{
    writeTinySeed(m_seed.path());
}

void SurvivalTest::aKilledBoardLosesNothingThatItAcknowledged()
{
    QTemporaryDir data;
    const QStringList arguments = {u"--data"_s, data.path(), u"--seed"_s, m_seed.path()};
    QStringList kept;
    qint64 rev = 0;
    for (int round = 0; round < 5; ++round) {
        BoardProcess board(arguments);
        const int port = board.port();
        QVERIFY(port > 0);
        constexpr int writers = 4;
        std::atomic<int> acknowledged = 0;
        QStringList written[writers];
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < writers; ++i)
                threads.emplace_back(
                    [&, i] { written[i] = writeUntilItDies(port, u"%1.%2"_s.arg(round).arg(i), acknowledged); });
            QTRY_VERIFY_WITH_TIMEOUT(acknowledged > 20 + round * 7, 20'000);
            board.kill();
        }
        for (const auto &texts : written)
            kept += texts;

        BoardProcess again(arguments);
        Visitor visitor(again.port());
        QVERIFY(visitor.signIn(TinyBoard::miraEmail));
        const auto found = notesOn(visitor, u"f2"_s);
        for (const QString &text : kept)
            QVERIFY2(found.count(text) == 1, qUtf8Printable(text));
        // Beside them at most the one of each writer that was cut off before its answer came.
        QVERIFY(found.size() <= kept.size() + (round + 1) * writers);
        QVERIFY(visitor.board().rev > rev);
        rev = visitor.board().rev;
    }
}

void SurvivalTest::aBoardKilledAsItFirstStartsStartsWhole()
{
    QTemporaryDir seed;
    writeTinySeed(seed.path());
    constexpr int pictures = 80; // so that it takes its time to start
    for (int i = 0; i < pictures; ++i) {
        QFile picture(seed.filePath(u"large_%1.png"_s.arg(i)));
        QVERIFY(picture.open(QIODevice::WriteOnly));
        picture.write(QByteArray(200'000, char(i)));
    }
    for (int round = 0; round < 6; ++round) {
        QTemporaryDir data;
        const QStringList arguments = {u"--data"_s, data.path(), u"--seed"_s, seed.path()};
        {
            BoardProcess board(arguments);
            const QFileInfo log(data.filePath(u"board.sqlite-wal"_s));
            const QDeadlineTimer patience(20'000);
            while (QFileInfo(log.filePath()).size() <= round * 1'000'000 && !patience.hasExpired())
                std::this_thread::yield();
            board.kill();
        }
        BoardProcess again(arguments);
        Visitor visitor(again.port());
        QVERIFY(visitor.signIn(TinyBoard::miraEmail));
        const auto board = visitor.board();
        QCOMPARE(board.files.size(), 2);
        QCOMPARE(board.users.size(), 2);
        QCOMPARE(visitor.file(u"f1"_s).findings.size(), 3);
        QCOMPARE(visitor.get(u"/api/blob/f4/0.png"_s).status, 200);
        for (int i = 0; i < pictures; ++i)
            QCOMPARE(visitor.get(u"/api/blob/large/%1.png"_s.arg(i)).body.size(), 200'000);
    }
}

void SurvivalTest::aTerminatedBoardEndsCleanly()
{
    QTemporaryDir data;
    BoardProcess board({u"--data"_s, data.path(), u"--seed"_s, m_seed.path()});
    Visitor visitor(board.port());
    QVERIFY(visitor.signIn(TinyBoard::miraEmail));
    QCOMPARE(board.terminate(), 0);
    QCOMPARE(visitor.get(u"/api/state"_s).status, 0);
    QVERIFY(!QFile::exists(data.filePath(u"board.sqlite-wal"_s)));
}

void SurvivalTest::aSyncThatWasKilledIsBegunAgain()
{
    QTemporaryDir data;
    const QStringList arguments = {u"--data"_s, data.path(), u"--seed"_s, m_seed.path()};
    QString id;
    {
        BoardProcess board(arguments);
        Visitor visitor(board.port());
        QVERIFY(visitor.signIn(TinyBoard::miraEmail));
        id = visitor.post(u"/api/jobs"_s, QJsonObject{{u"kind"_s, u"sync"_s}}).as<Job>().id;
        QTRY_COMPARE(visitor.board().sync->status, u"running"_s);
        board.kill();
    }
    BoardProcess again(arguments);
    Visitor visitor(again.port());
    QVERIFY(visitor.signIn(TinyBoard::miraEmail));
    QTRY_COMPARE_WITH_TIMEOUT(visitor.board().sync->status, u"done"_s, 30'000);
    QCOMPARE(visitor.board().sync->id, id);
    QCOMPARE(visitor.board().files[0].id, u"f3"_s);
}

void SurvivalTest::whatIsWrongIsSaid_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");
    QTest::newRow("no address") << QStringList{u"--listen"_s, u"here"_s} << u"here is no address"_s;
    QTest::newRow("an address of another machine")
        << QStringList{u"--listen"_s, u"192.0.2.1:8123"_s, u"--seed"_s, m_seed.path()}
        << u"Can't listen on 192.0.2.1"_s;
    QTest::newRow("no seed") << QStringList{u"--seed"_s, u"/nowhere"_s} << u"/nowhere/sample.json: cannot be read"_s;
    QTest::newRow("nobody") << QStringList() << u"There is nobody on this board"_s;
    QTest::newRow("an unknown option") << QStringList{u"--port"_s, u"1"_s} << u"port"_s;
}

void SurvivalTest::whatIsWrongIsSaid()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    QTemporaryDir data;
    BoardProcess board(arguments + QStringList{u"--data"_s, data.path()});
    QCOMPARE(board.exitStatus(), 1);
    const auto errors = board.errors();
    QVERIFY2(errors.contains(said), qUtf8Printable(errors));
}

QTEST_GUILESS_MAIN(SurvivalTest)
#include "tst_survival.moc"
