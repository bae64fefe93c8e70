#include "localboard.h"
#include "seed.h"
#include "synctexts.h"
#include "tinyseed.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using namespace vexal::local;

/// What the board keeps, and what it starts from.
class LedgerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeThatIsNotCommittedLeavesNoTrace();
    void aFullDiskKeepsTheBoardAsItWas();
    void aFolderServesOneBoardAtATime();
    void aLedgerOfAnotherLayoutIsLeftAlone();
    void whatIsNoLedgerIsNamed();
    void aSeedIsPlantedOnce();
    void aBrokenSeedIsNamedAndPlantsNothing_data();
    void aBrokenSeedIsNamedAndPlantsNothing();
    void timesMoveTogether();
    void whatIsNoWorkIsNotOpen();
    void aSyncOfAProofWithoutOursSaysSo();
};

namespace {

double noon()
{
    return tinyNewest;
}

QString ledgerIn(const QTemporaryDir &folder)
{
    return folder.filePath(u"board.sqlite"_s);
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

} // namespace

void LedgerTest::aChangeThatIsNotCommittedLeavesNoTrace()
{
    QTemporaryDir folder;
    {
        Ledger ledger(ledgerIn(folder), noon);
        {
            Change change(ledger);
            ledger.people.put({.email = u"a@x"_s, .name = u"A"_s});
            change.tell({.kind = u"signin"_s});
        }
        QVERIFY(ledger.people.isEmpty());
        QVERIFY(ledger.events.isEmpty());
        QCOMPARE(ledger.rev, 0);
        Change change(ledger);
        ledger.people.put({.email = u"b@x"_s, .name = u"B"_s});
        change.commit();
        QCOMPARE(ledger.rev, 1);
    }
    Ledger again(ledgerIn(folder), noon);
    QCOMPARE(again.rev, 1);
    QVERIFY(again.people.find(u"b@x"_s));
    QVERIFY(!again.people.find(u"a@x"_s));
}

void LedgerTest::aFullDiskKeepsTheBoardAsItWas()
{
    QTemporaryDir folder;
    Ledger ledger(ledgerIn(folder), noon);
    ledger.database.run("PRAGMA max_page_count = 60");
    const QByteArray half(100'000, 'x');
    {
        Change change(ledger);
        ledger.putBlob(u"one"_s, half);
        change.commit();
    }
    {
        Change change(ledger);
        ledger.people.put({.email = u"a@x"_s, .name = u"A"_s});
        QVERIFY_THROWS_EXCEPTION(DatabaseError, ledger.putBlob(u"two"_s, half + half));
    }
    QVERIFY(ledger.people.isEmpty());
    QCOMPARE(ledger.rev, 1);
    QCOMPARE(ledger.blob(u"one"_s), half);
    Change change(ledger);
    ledger.people.put({.email = u"a@x"_s, .name = u"A"_s});
    change.commit();
    QCOMPARE(ledger.rev, 2);
}

void LedgerTest::aFolderServesOneBoardAtATime()
{
    QTemporaryDir folder;
    LocalBoard first({.data = folder.path()});
    QVERIFY(!first.start());
    LocalBoard second({.data = folder.path()});
    const auto problem = second.start();
    QVERIFY(problem);
    QVERIFY2(problem->contains(u"another board is using it"_s), qUtf8Printable(*problem));
}

void LedgerTest::aLedgerOfAnotherLayoutIsLeftAlone()
{
    QTemporaryDir folder;
    Database(ledgerIn(folder)).run("PRAGMA user_version = 99");
    LocalBoard board({.data = folder.path()});
    const auto problem = board.start();
    QVERIFY(problem);
    QVERIFY2(problem->contains(u"another version"_s), qUtf8Printable(*problem));
}

void LedgerTest::whatIsNoLedgerIsNamed()
{
    QTemporaryDir folder;
    write(ledgerIn(folder), QByteArray("This is a shopping list.\n").repeated(100));
    LocalBoard board({.data = folder.path()});
    const auto problem = board.start();
    QVERIFY(problem);
    QVERIFY2(problem->contains(folder.path()), qUtf8Printable(*problem));
    QVERIFY(LocalBoard({.data = ledgerIn(folder) + u"/below"_s}).start());
}

void LedgerTest::aSeedIsPlantedOnce()
{
    QTemporaryDir folder;
    QTemporaryDir seed;
    writeTinySeed(seed.path());
    const LocalBoardOptions options{.data = folder.path(), .seed = seed.path(), .seedIsNow = false};
    const auto email = u"mira@lanternhouse.example"_s;
    {
        LocalBoard board(options);
        QVERIFY(!board.start());
        QCOMPARE(board.state(email).files, tinySample().board.files);
        QVERIFY(board.review().setStatus(email, u"f1"_s, u"reviewed"_s));
    }
    LocalBoard board(options);
    QVERIFY(!board.start());
    QCOMPARE(board.state(email).files[0].status, u"reviewed"_s);
    QCOMPARE(board.state(email).files.size(), 2);
}

void LedgerTest::aBrokenSeedIsNamedAndPlantsNothing_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("said");
    QTest::newRow("no sample") << u"sample.json"_s << QByteArray() << u"sample.json"_s;
    QTest::newRow("half a sample") << u"sample.json"_s << QByteArray(R"({"board":{"rev":1},"details":{}})")
                                   << u"board.me: missing"_s;
    QTest::newRow("no inbox") << u"inbox/inbox.json"_s << QByteArray("[]") << u"inbox.json"_s;
    QTest::newRow("half an inbox") << u"inbox/inbox.json"_s << QByteArray(R"({"details":[{"file":{"id":"a"}}]})")
                                   << u"details[0].file.status: missing"_s;
}

void LedgerTest::aBrokenSeedIsNamedAndPlantsNothing()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, said);
    QTemporaryDir seed;
    writeTinySeed(seed.path());
    write(seed.filePath(file), bytes);
    QTemporaryDir folder;
    LocalBoard board({.data = folder.path(), .seed = seed.path()});
    const auto problem = board.start();
    QVERIFY(problem);
    QVERIFY2(problem->contains(said), qUtf8Printable(*problem));
    LocalBoard empty({.data = folder.path()});
    QVERIFY(!empty.start());
    QVERIFY(empty.people().isEmpty());
}

void LedgerTest::timesMoveTogether()
{
    QTemporaryDir folder;
    writeTinySeed(folder.path());
    auto seed = *readSeed(folder.path());
    moveTimes(seed, tinyNewest + 500);
    const auto &board = seed.sample.board;
    QCOMPARE(board.users[0].last_seen, tinyNewest + 500);
    QCOMPARE(board.users[1].last_seen, tinyNewest - 8500);
    QCOMPARE(board.events[2].at, tinyNewest - 2500);
    QCOMPARE(board.files[0].created, tinyNewest - 4500);
    QCOMPARE(seed.sample.details.value(u"f1"_s).comments[0].at, tinyNewest + 500);
    QCOMPARE(seed.sample.details.value(u"f1"_s).comments[0].x, 0.5);
    QCOMPARE(seed.inbox[0].comments[0].at, tinyNewest + 500);
    QVERIFY(!board.files[0].received);
}

void LedgerTest::whatIsNoWorkIsNotOpen()
{
    const auto finding = [](const QString &kind, const QString &state) {
        return Finding{.kind = kind, .state = state};
    };
    const QList<Finding> findings = {finding(u"words"_s, u"open"_s), finding(u"words"_s, u"issue"_s),
                                     finding(u"fonts"_s, u"fine"_s), finding(u"expected"_s, u"open"_s),
                                     finding(u"pass"_s, u"open"_s),  finding(u"size"_s, u"issue"_s)};
    QCOMPARE(tallyOf(findings), (Tally{.open = 1, .issues = 2, .total = 6}));
    QCOMPARE(tallyOf({}), (Tally{.open = 0, .issues = 0, .total = 0}));
}

void LedgerTest::aSyncOfAProofWithoutOursSaysSo()
{
    const FileDetail proof{.file = {.id = u"f"_s, .title = u"100% Wool %1"_s, .status = u"new"_s}};
    QStringList done;
    for (const Step &step : syncSteps(proof))
        done.append(step.done);
    QCOMPARE(done,
             (QStringList{u"Read 1 new mail"_s, u"Filed 100% Wool %1 to Drive"_s,
                          u"Found nothing of ours to compare it with"_s, u"Checked the words"_s,
                          u"Checked the pictures"_s, u"Found no differences"_s, u"Put 100% Wool %1 on the board"_s}));
    QCOMPARE(newFileText(proof.file), u"100% Wool %1"_s);
    QVERIFY(!syncSummary(proof).check);
}

QTEST_GUILESS_MAIN(LedgerTest)
#include "tst_ledger.moc"
