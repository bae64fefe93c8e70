#include "pdfreader.h"
#include "tinyboard.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vexal;

/// Syncs and reports, as people ask for them and the worker does them.
class JobsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSyncBringsTheNextProof();
    void aSyncWithAnEmptyInboxSaysSo();
    void aSyncIsSeenStepByStep();
    void aSecondSyncIsRefusedWhileOneIsUnderWay();
    void aStoppedSyncBringsNothing();
    void jobsWaitInLine();
    void theLineHasAnEnd();
    void aJobThatWasCutOffIsBegunAgain();
    void aReportIsAPdfOfPagesFindingsAndNotes();
    void aReportOnSeveralFilesHoldsThemAll();
    void aFileNamedTwiceIsInAReportOnce();
    void aStoppedReportIsNotMade();
    void aLongNoteRunsOverSeveralSheets();
    void aReportThatCameWithoutItsPdfIsDrawnOnce();
    void aMissingPictureDoesNotStopAReport();
};

namespace {

const QJsonObject syncBody{{u"kind"_s, u"sync"_s}};

QJsonObject reportBody(const QStringList &files)
{
    return {{u"kind"_s, u"report"_s}, {u"file_ids"_s, QJsonArray::fromStringList(files)}};
}

Reply ask(Visitor &visitor, const QJsonObject &job)
{
    return visitor.post(u"/api/jobs"_s, job);
}

Reply stop(Visitor &visitor, const QString &id)
{
    return visitor.post(u"/api/jobs/"_s + id + u"/stop"_s);
}

QByteArray pdfOf(Visitor &visitor, const QString &reportId)
{
    const auto reply = visitor.get(u"/api/reports/"_s + reportId + u"/pdf"_s);
    return reply.status == 200 && reply.type == "application/pdf" ? reply.body : QByteArray();
}

} // namespace

void JobsTest::aSyncBringsTheNextProof()
{
    TinyBoard board;
    auto mira = board.mira();
    board.now = tinyNewest + 60'000;
    const auto asked = ask(mira, syncBody);
    QCOMPARE(asked.status, 200);
    QCOMPARE(asked.as<Job>().status, u"queued"_s);
    QVERIFY(board.isAtRest());

    const auto seen = mira.board();
    QVERIFY(seen.sync);
    QCOMPARE(seen.jobs, QList{*seen.sync});
    const auto job = *seen.sync;
    QCOMPARE(job.id, asked.as<Job>().id);
    QCOMPARE(job.status, u"done"_s);
    QCOMPARE(job.requested_by, TinyBoard::miraEmail);
    QCOMPARE(job.finished, board.now.load());
    QVERIFY(!job.step);
    QCOMPARE(job.result, (JobResult{.new_files = 1}));
    QCOMPARE(job.steps->first(), u"Read 1 new mail from Pellow Cartons"_s);
    QCOMPARE(job.steps->last(), u"Put Moth Carnival Box lid on the board"_s);
    QCOMPARE(job.summary->changed, QList{u"Moth Carnival Box lid: found 1 difference"_s});
    QCOMPARE(job.summary->check, QList{u"Moth Carnival Box lid: 1 finding to look at first"_s});

    QCOMPARE(seen.files.size(), 3);
    const auto file = seen.files[0];
    QCOMPARE(file.id, u"f3"_s);
    QCOMPARE(file.status, u"new"_s);
    QCOMPARE(file.received, board.now.load());
    QCOMPARE(file.tally, (Tally{.open = 1, .issues = 0, .total = 1}));
    const auto detail = mira.file(u"f3"_s);
    QCOMPARE(withoutPages(detail.file), file);
    QCOMPARE(detail.file.pages->size(), 1);
    QCOMPARE(detail.findings.size(), 1);
    QCOMPARE(detail.comments.size(), 1);
    QCOMPARE(mira.get(u"/api/blob/f3/0.png"_s).status, 200);

    QStringList told;
    for (const Event &event : seen.events.first(3))
        told.append(event.kind + u"|"_s + event.by.value_or(u"-"_s) + u"|"_s + event.text.value_or(QString()));
    QCOMPARE(told[0], u"synced|-|1 new file from Pellow Cartons"_s);
    QCOMPARE(told[1], u"new_file|-|Moth Carnival Box lid from Pellow Cartons"_s);
    QCOMPARE(told[2], u"sync|mira@lanternhouse.example|Started a sync"_s);

    QCOMPARE(ask(mira, syncBody).status, 200);
    QVERIFY(board.isAtRest());
    QCOMPARE(mira.board().files[0].id, u"f4"_s);
    QVERIFY(!mira.board().sync->summary->check);
}

void JobsTest::aSyncWithAnEmptyInboxSaysSo()
{
    TinyBoard board;
    auto mira = board.mira();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(ask(mira, syncBody).status, 200);
        QVERIFY(board.isAtRest());
    }
    const auto seen = mira.board();
    QCOMPARE(seen.files.size(), 4);
    QCOMPARE(seen.sync->status, u"done"_s);
    QCOMPARE(seen.sync->result->new_files, 0);
    QCOMPARE(seen.sync->summary->done, QList{u"Read the supplier mail: nothing new"_s});
    QCOMPARE(seen.events[0].kind, u"synced"_s);
    QCOMPARE(seen.events[0].text, u"Nothing new in the supplier mail"_s);
}

void JobsTest::aSyncIsSeenStepByStep()
{
    TinyBoard board({}, 300ms);
    auto mira = board.mira();
    ask(mira, syncBody);
    QTRY_COMPARE(mira.board().sync->step, u"Reading the supplier mail"_s);
    QCOMPARE(mira.board().sync->steps, QList{u"Reading the supplier mail"_s});
    const auto held = mira.get(u"/api/state"_s).tag;
    QTRY_COMPARE(mira.board().sync->step, u"Filing f3.pdf to Drive"_s);
    QCOMPARE(mira.board().sync->steps, (QList{u"Read 1 new mail from Pellow Cartons"_s, u"Filing f3.pdf to Drive"_s}));
    QCOMPARE(mira.get(u"/api/state"_s, held).status, 200);
    QCOMPARE(mira.board().sync->status, u"running"_s);
    QCOMPARE(mira.board().files.size(), 2);
}

void JobsTest::aSecondSyncIsRefusedWhileOneIsUnderWay()
{
    TinyBoard board({}, 60s);
    auto mira = board.mira();
    auto teo = board.teo();
    const auto id = ask(mira, syncBody).as<Job>().id;
    QVERIFY(board.isAtWork());
    const auto second = ask(teo, syncBody);
    QCOMPARE(second.status, 400);
    QCOMPARE(second.error(), u"A sync is already under way."_s);
    QCOMPARE(stop(teo, id).status, 200);
    QCOMPARE(ask(teo, syncBody).status, 200);
}

void JobsTest::aStoppedSyncBringsNothing()
{
    TinyBoard board({}, 60s);
    auto mira = board.mira();
    auto teo = board.teo();
    const auto id = ask(mira, syncBody).as<Job>().id;
    QVERIFY(board.isAtWork());
    const auto stopped = stop(teo, id);
    QCOMPARE(stopped.status, 200);
    QCOMPARE(stopped.as<Job>().status, u"stopped"_s);
    const auto seen = mira.board();
    QCOMPARE(seen.sync->status, u"stopped"_s);
    QCOMPARE(seen.sync->finished, board.now.load());
    QVERIFY(!seen.sync->step);
    QCOMPARE(seen.events[0].kind, u"stop"_s);
    QCOMPARE(seen.events[0].text, u"Stopped the sync"_s);
    QCOMPARE(seen.events[0].by, TinyBoard::teoEmail);
    QCOMPARE(stop(teo, id).status, 400);

    // The worker has let go of it and of nothing else: the next sync brings what this one would have brought.
    const auto next = ask(mira, syncBody).as<Job>().id;
    QTRY_COMPARE(mira.board().sync->status, u"running"_s);
    QCOMPARE(mira.board().sync->id, next);
    QCOMPARE(mira.board().files.size(), 2);
}

void JobsTest::jobsWaitInLine()
{
    TinyBoard board({}, 60s);
    auto mira = board.mira();
    const auto first = ask(mira, syncBody).as<Job>().id;
    QVERIFY(board.isAtWork());
    const auto waiting = ask(mira, reportBody({u"f1"_s})).as<Job>();
    QCOMPARE(waiting.args->file_ids, QList{u"f1"_s});
    const auto dropped = ask(mira, reportBody({u"f2"_s})).as<Job>();
    QCOMPARE(stop(mira, dropped.id).as<Job>().status, u"stopped"_s);
    QCOMPARE(mira.board().jobs[0].status, u"stopped"_s);
    QCOMPARE(mira.board().jobs[1].status, u"queued"_s);
    stop(mira, first);
    QTRY_COMPARE(mira.board().jobs[1].status, u"running"_s);
}

void JobsTest::theLineHasAnEnd()
{
    TinyBoard board({}, 60s);
    auto mira = board.mira();
    for (int i = 0; i < 20; ++i)
        QCOMPARE(ask(mira, reportBody({u"f1"_s})).status, 200);
    const auto refused = ask(mira, reportBody({u"f1"_s}));
    QCOMPARE(refused.status, 400);
    QCOMPARE(refused.error(), u"There is a lot in line already. Try again in a while."_s);
    QCOMPARE(mira.board().jobs.size(), 20);
}

void JobsTest::aJobThatWasCutOffIsBegunAgain()
{
    QTemporaryDir data;
    QString id;
    {
        TinyBoard board(data.path(), 60s);
        auto mira = board.mira();
        id = ask(mira, syncBody).as<Job>().id;
        QVERIFY(board.isAtWork());
    }
    TinyBoard again(data.path());
    QVERIFY(again.isAtRest());
    const auto seen = again.mira().board();
    QCOMPARE(seen.sync->id, id);
    QCOMPARE(seen.sync->status, u"done"_s);
    QCOMPARE(seen.files[0].id, u"f3"_s);
    QCOMPARE(seen.sync->steps->size(), 7);
}

void JobsTest::aReportIsAPdfOfPagesFindingsAndNotes()
{
    TinyBoard board;
    auto mira = board.mira();
    QVERIFY(board->review().setFindingState(TinyBoard::teoEmail, u"a"_s, u"issue"_s));
    const auto job = ask(mira, reportBody({u"f1"_s})).as<Job>();
    QVERIFY(board.isAtRest());
    const auto seen = mira.board();
    const auto made = seen.reports[0];
    QCOMPARE(seen.jobs[0].status, u"done"_s);
    QCOMPARE(seen.jobs[0].result->report_id, made.id);
    QCOMPARE(made.job_id, job.id);
    QCOMPARE(made.file_ids, QList{u"f1"_s});
    QCOMPARE(made.title, u"Report on A Letter by Owl Box lid"_s);
    QCOMPARE(made.by, TinyBoard::miraEmail);
    QCOMPARE(seen.events[0].kind, u"report_ready"_s);
    QCOMPARE(seen.events[0].text, u"Report on A Letter by Owl Box lid is ready"_s);
    QVERIFY(!seen.events[0].by);
    QCOMPARE(seen.events[1].kind, u"report"_s);
    QCOMPARE(seen.events[1].text, u"Asked for a report on A Letter by Owl Box lid"_s);

    const auto pdf = pdfOf(mira, made.id);
    QCOMPARE(made.size, pdf.size());
    const auto text = textOfPdf(pdf);
    for (const auto &part : {u"A Letter by Owl Box lid"_s, u"Asked for by Mira Lund"_s, u"“it is” reads “it’s”"_s,
                             u"Ours: OPEN WHEN IT IS DARK"_s, u"Theirs: OPEN WHEN IT’S DARK"_s, u"Real issue · Teo "_s,
                             u"Minor · Not judged yet"_s, u"Minor · Expected"_s, u"1 real issue, 1 to look at"_s,
                             u"Warmer"_s, u"Note by Teo "_s, u"Page 1"_s, u"Page 2"_s})
        QVERIFY2(text.contains(part), qUtf8Printable(part + u" in: "_s + text));
    const auto sheets = sheetsOfPdf(pdf);
    QCOMPARE(sheets.size(), 2);
    QVERIFY(shows(sheets[0], QColor(0xE4, 0x57, 0x2E))); // the mark
    QVERIFY(shows(sheets[1], Qt::red));                  // the pages' pictures
}

void JobsTest::aReportOnSeveralFilesHoldsThemAll()
{
    TinyBoard board;
    auto mira = board.mira();
    ask(mira, reportBody({u"f1"_s, u"f2"_s}));
    QVERIFY(board.isAtRest());
    const auto made = mira.board().reports[0];
    QCOMPARE(made.title, u"Report on 2 files"_s);
    QCOMPARE(made.file_ids, (QList{u"f1"_s, u"f2"_s}));
    const auto pdf = pdfOf(mira, made.id);
    QCOMPARE(sheetsOfPdf(pdf).size(), 3);
    QVERIFY(textOfPdf(pdf).contains(u"Tidepool Box lid"_s));
    QVERIFY(textOfPdf(pdf).contains(u"Nothing found."_s));
}

void JobsTest::aFileNamedTwiceIsInAReportOnce()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto job = ask(mira, reportBody({u"f2"_s, u"f1"_s, u"f2"_s})).as<Job>();
    QCOMPARE(job.args->file_ids, (QList{u"f2"_s, u"f1"_s}));
    QVERIFY(board.isAtRest());
    QCOMPARE(mira.board().reports[0].file_ids, (QList{u"f2"_s, u"f1"_s}));
    QCOMPARE(mira.board().reports[0].title, u"Report on 2 files"_s);
}

void JobsTest::aStoppedReportIsNotMade()
{
    TinyBoard board({}, 60s);
    auto mira = board.mira();
    const auto id = ask(mira, reportBody({u"f1"_s})).as<Job>().id;
    QTRY_COMPARE(mira.board().jobs[0].step, u"Gathering findings and notes"_s);
    QCOMPARE(stop(mira, id).status, 200);
    QCOMPARE(mira.board().events[0].text, u"Stopped the report"_s);
    QCOMPARE(mira.board().reports.size(), 1);
    QCOMPARE(mira.board().jobs[0].status, u"stopped"_s);
}

void JobsTest::aLongNoteRunsOverSeveralSheets()
{
    TinyBoard board;
    auto mira = board.mira();
    QString words;
    while (words.size() < 9900)
        words += u"word%1 "_s.arg(words.size());
    QVERIFY(board->review().addNote(TinyBoard::miraEmail, {.file_id = u"f2"_s, .text = words, .page = 0}));
    QVERIFY(board->review().addNote(TinyBoard::miraEmail, {.file_id = u"f2"_s, .text = QString(9000, u'x')}));
    ask(mira, reportBody({u"f2"_s}));
    QVERIFY(board.isAtRest());
    const auto pdf = pdfOf(mira, mira.board().reports[0].id);
    QVERIFY(sheetsOfPdf(pdf).size() >= 4);
    const auto text = textOfPdf(pdf);
    for (const QString &word : words.split(u' ', Qt::SkipEmptyParts))
        QVERIFY2(text.contains(word), qUtf8Printable(word));
    QCOMPARE(text.count(u'x') >= 9000, true);
}

void JobsTest::aReportThatCameWithoutItsPdfIsDrawnOnce()
{
    TinyBoard board;
    auto mira = board.mira();
    const auto pdf = pdfOf(mira, u"r1"_s);
    QVERIFY(textOfPdf(pdf).contains(u"Asked for by Teo "_s));
    QCOMPARE(mira.board().reports[0].size, pdf.size());
    QCOMPARE(pdfOf(mira, u"r1"_s), pdf);
    QCOMPARE(mira.get(u"/api/reports/r9/pdf"_s).status, 404);
}

void JobsTest::aMissingPictureDoesNotStopAReport()
{
    TinyBoard board;
    auto mira = board.mira();
    board->addPicture(u"f1/0.png"_s, "not a picture");
    ask(mira, reportBody({u"f1"_s}));
    QVERIFY(board.isAtRest());
    QCOMPARE(mira.board().jobs[0].status, u"done"_s);
    QCOMPARE(sheetsOfPdf(pdfOf(mira, mira.board().reports[0].id)).size(), 2);
}

QTEST_MAIN(JobsTest)
#include "tst_jobs.moc"
