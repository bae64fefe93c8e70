#include "activity.h"
#include "boards.h"
#include "jobtexts.h"
#include "synclast.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Event eventOf(const QString &kind, const std::optional<QString> &text = {})
{
    return Event{.id = 1, .kind = kind, .text = text};
}

Job syncOf(const QString &status)
{
    Job job = aJob(u"sync"_s, status);
    job.requested_by = u"teo@x.org"_s;
    return job;
}

} // namespace

class ActivityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindHasItsPhrase_data();
    void eachKindHasItsPhrase();
    void withoutAnActorTheSentenceBeginsWithWhatWasDone();
    void markupFromOutsideStaysText();
    void aRowLeadsToAFileThatIsOnTheBoard();
    void fourStepsAreAllListed();
    void fiveStepsListTheLastFourUnderOne();
    void sixStepsListTheLastFourUnderTwo();
    void noStepsAreNoList();
    void theWorkingPhrasesGoRound();
    void aDoneSyncWithoutAnythingToCheckIsDone();
    void aDoneSyncWithSomethingToCheckNeedsALook();
    void aSyncThatFoundNothingSaysSo();
    void aSyncThatDidNotFinishSaysSo();

private:
    TestClock m_clock;
};

void ActivityTest::eachKindHasItsPhrase_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("comment") << u"comment"_s << u"Ask again"_s << u"Mira left a note: “Ask again”"_s;
    QTest::newRow("finding") << u"finding"_s << u"Marked fine"_s << u"Mira marked fine"_s;
    QTest::newRow("status") << u"status"_s << u"Marked reviewed"_s << u"Mira marked reviewed"_s;
    QTest::newRow("report") << u"report"_s << u"Asked for it"_s << u"Mira asked for it"_s;
    QTest::newRow("stop") << u"stop"_s << u"Äußerst"_s << u"Mira äußerst"_s;
    QTest::newRow("sync") << u"sync"_s << u"x"_s << u"Mira started a sync"_s;
    QTest::newRow("synced") << u"synced"_s << u"2 new"_s << u"Mira · 2 new"_s;
    QTest::newRow("new file") << u"new_file"_s << u"Moth"_s << u"Mira · Moth"_s;
    QTest::newRow("report ready") << u"report_ready"_s << u"x"_s << u"Mira · Report ready"_s;
    QTest::newRow("signin") << u"signin"_s << u"x"_s << u"Mira signed in"_s;
    QTest::newRow("photo") << u"photo"_s << u"x"_s << u"Mira changed their photo"_s;
    QTest::newRow("resolve") << u"resolve"_s << u"x"_s << u"Mira resolved a note"_s;
    QTest::newRow("any other") << u"danced"_s << u"Danced"_s << u"Mira Danced"_s;
}

void ActivityTest::eachKindHasItsPhrase()
{
    QFETCH(QString, kind);
    QFETCH(QString, text);
    QFETCH(QString, sentence);
    QCOMPARE(activitySentence(eventOf(kind, text), u"Mira"_s), sentence);
}

void ActivityTest::withoutAnActorTheSentenceBeginsWithWhatWasDone()
{
    QCOMPARE(activitySentence(eventOf(u"synced"_s, u"2 new"_s), {}), u"· 2 new"_s);
    QCOMPARE(activitySentence(eventOf(u"signin"_s), {}), u"signed in"_s);
    QCOMPARE(activitySentence(eventOf(u"danced"_s), {}).trimmed(), QString());
}

void ActivityTest::markupFromOutsideStaysText()
{
    BoardState board = aBoard();
    board.events = {eventOf(u"comment"_s, u"<img src='http://127.0.0.1:9/'> & <b>bold</b>"_s)};
    const QString styled = activityRows(board, m_clock.clock())[0].styled;
    QVERIFY2(!styled.contains(u"<img"_s), qPrintable(styled));
    QVERIFY(styled.contains(u"&lt;b&gt;"_s));
}

void ActivityTest::aRowLeadsToAFileThatIsOnTheBoard()
{
    BoardState board = aBoard({aFile(u"f"_s)});
    Event known = eventOf(u"comment"_s);
    known.file_id = u"f"_s;
    known.page = 3;
    Event gone = eventOf(u"comment"_s);
    gone.file_id = u"gone"_s;
    board.events = {known, gone, eventOf(u"signin"_s)};
    const QList<ActivityRow> rows = activityRows(board, m_clock.clock());
    QVERIFY(rows[0].leads());
    QCOMPARE(rows[0].page, 3);
    QVERIFY(!rows[1].leads());
    QVERIFY(!rows[2].leads());
}

void ActivityTest::fourStepsAreAllListed()
{
    const QStringList steps{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QCOMPARE(JobTexts::listedSteps(steps), steps);
    QCOMPARE(JobTexts::earlierSteps(steps), QString());
}

void ActivityTest::fiveStepsListTheLastFourUnderOne()
{
    const QStringList steps{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
    QCOMPARE(JobTexts::listedSteps(steps), QStringList({u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
    QCOMPARE(JobTexts::earlierSteps(steps), u"1 earlier step"_s);
}

void ActivityTest::sixStepsListTheLastFourUnderTwo()
{
    QCOMPARE(JobTexts::earlierSteps({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s}), u"2 earlier steps"_s);
}

void ActivityTest::noStepsAreNoList()
{
    QVERIFY(JobTexts::listedSteps({}).isEmpty());
    QCOMPARE(JobTexts::earlierSteps({}), QString());
}

void ActivityTest::theWorkingPhrasesGoRound()
{
    QCOMPARE(JobTexts::workingPhrase(0), u"reading the fine print"_s);
    QCOMPARE(JobTexts::workingPhrase(4), u"holding it up to the light"_s);
    QCOMPARE(JobTexts::workingPhrase(5), u"reading the fine print"_s);
}

void ActivityTest::aDoneSyncWithoutAnythingToCheckIsDone()
{
    QCOMPARE(resultRow(syncOf(u"done"_s), nullptr, m_clock.clock()).title, u"Done"_s);
    QCOMPARE(resultRow(syncOf(u"stopped"_s), nullptr, m_clock.clock()).title, u"Stopped"_s);
    QCOMPARE(resultRow(syncOf(u"failed"_s), nullptr, m_clock.clock()).title, u"Didn't finish"_s);
}

void ActivityTest::aDoneSyncWithSomethingToCheckNeedsALook()
{
    Job job = syncOf(u"done"_s);
    job.summary = Summary{.check = QList<QString>{u"No match for page 3"_s}};
    QCOMPARE(resultRow(job, nullptr, m_clock.clock()).title, u"Needs a look"_s);
    QCOMPARE(syncLast(job, nullptr, m_clock.clock()).symbol, u"exclamationmark.circle.fill"_s);
    job.summary = Summary{.check = QList<QString>{}};
    QCOMPARE(syncLast(job, nullptr, m_clock.clock()).symbol, u"checkmark.circle.fill"_s);
}

void ActivityTest::aSyncThatFoundNothingSaysSo()
{
    Job job = syncOf(u"done"_s);
    job.finished = m_clock.clock().milliseconds() - 120000;
    QCOMPARE(syncLast(job, nullptr, m_clock.clock()).text, u"Nothing new · Teo · 2 min ago"_s);
    job.result = JobResult{.new_files = 2};
    QCOMPARE(syncLast(job, nullptr, m_clock.clock()).text, u"2 new · Teo · 2 min ago"_s);
}

void ActivityTest::aSyncThatDidNotFinishSaysSo()
{
    Job job = syncOf(u"failed"_s);
    job.finished = m_clock.clock().milliseconds() - 120000;
    const SyncLast last = syncLast(job, nullptr, m_clock.clock());
    QCOMPARE(last.text, u"Last sync didn't finish · 2 min ago"_s);
    QCOMPARE(last.symbol, u"xmark.circle.fill"_s);
}

QTEST_GUILESS_MAIN(ActivityTest)
#include "tst_activity.moc"
