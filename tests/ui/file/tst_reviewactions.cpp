#include "boards.h"
#include "filelinks.h"
#include "reviewactions.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Job reportJob(const QString &id, const QString &status, const QStringList &files, double created)
{
    Job job = aJob(u"report"_s, status);
    job.id = id;
    job.created = created;
    job.args = JobArgs{files};
    return job;
}

Report aReport(const QString &id, const QStringList &files, double at)
{
    Report report;
    report.id = id;
    report.file_ids = files;
    report.at = at;
    report.by = u"teo@x.org"_s;
    return report;
}

} // namespace

class ReviewActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileWithoutAReportCanHaveOneMade();
    void theNewestReportOnExactlyTheseFilesIsTheirs();
    void theNewestJobOnExactlyTheseFilesIsTheirs();
    void aQueuedJobStandsInLine();
    void aRunningJobTellsItsStep();
    void aJobThatFailedOrIsStuckSaysSo_data();
    void aJobThatFailedOrIsStuckSaysSo();
    void whatIsUnderWayIsTold();
    void theReportTellsItsMakerAndTime();
    void theLinksStandInTheirOrder();
    void whatIsMissingHasNoLink();

private:
    ReportProgress progress(const QSet<QString> &files, const QSet<QString> &busy = {}) const
    {
        return reportProgress(files, m_board, busy, m_clock,
                              [](const std::optional<QString> &email) { return email ? u"Teo"_s : u"Claude"_s; });
    }

    BoardState m_board = aBoard({aFile(u"a"_s), aFile(u"b"_s)});
    const QDateTime m_now = QDateTime::fromString(u"2026-11-20T12:00:00Z"_s, Qt::ISODate);
    const Clock m_clock{[this] { return m_now; }, QTimeZone::utc(), QLocale(u"en_GB"_s)};
};

void ReviewActionsTest::aFileWithoutAReportCanHaveOneMade()
{
    m_board.jobs = {aJob(u"sync"_s, u"running"_s)};
    m_board.reports = {};
    QCOMPARE(progress({u"a"_s}), ReportProgress());
}

void ReviewActionsTest::theNewestReportOnExactlyTheseFilesIsTheirs()
{
    m_board.reports = {aReport(u"old"_s, {u"a"_s}, 1), aReport(u"new"_s, {u"a"_s}, 3),
                       aReport(u"both"_s, {u"b"_s, u"a"_s}, 9), aReport(u"middle"_s, {u"a"_s}, 2)};
    QCOMPARE(progress({u"a"_s}).report, u"new"_s);
    QCOMPARE(progress({u"a"_s, u"b"_s}).report, u"both"_s);
    QCOMPARE(progress({u"b"_s}).report, QString());
}

void ReviewActionsTest::theNewestJobOnExactlyTheseFilesIsTheirs()
{
    m_board.jobs = {reportJob(u"new"_s, u"running"_s, {u"a"_s}, 5), reportJob(u"old"_s, u"failed"_s, {u"a"_s}, 1),
                    reportJob(u"both"_s, u"queued"_s, {u"a"_s, u"b"_s}, 9)};
    QCOMPARE(progress({u"a"_s}).job, u"new"_s);
    QVERIFY(!progress({u"a"_s}).failed);
    QCOMPARE(progress({u"b"_s, u"a"_s}).job, u"both"_s);
}

void ReviewActionsTest::aQueuedJobStandsInLine()
{
    m_board.jobs = {reportJob(u"j"_s, u"queued"_s, {u"a"_s}, 1)};
    QVERIFY(progress({u"a"_s}).making);
    QCOMPARE(progress({u"a"_s}).step, u"Report in line"_s);
}

void ReviewActionsTest::aRunningJobTellsItsStep()
{
    m_board.jobs = {reportJob(u"j"_s, u"running"_s, {u"a"_s}, 1)};
    QVERIFY(progress({u"a"_s}).making);
    QCOMPARE(progress({u"a"_s}).step, u"Making the report"_s);
    m_board.jobs[0].step = u"Drawing page 3"_s;
    QCOMPARE(progress({u"a"_s}).step, u"Drawing page 3"_s);
}

void ReviewActionsTest::aJobThatFailedOrIsStuckSaysSo_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("failed");
    QTest::newRow("failed") << u"failed"_s << true;
    QTest::newRow("stuck") << u"stuck"_s << true;
    QTest::newRow("done") << u"done"_s << false;
    QTest::newRow("stopped") << u"stopped"_s << false;
}

void ReviewActionsTest::aJobThatFailedOrIsStuckSaysSo()
{
    QFETCH(QString, status);
    QFETCH(bool, failed);
    m_board.jobs = {reportJob(u"j"_s, status, {u"a"_s}, 1)};
    QCOMPARE(progress({u"a"_s}).failed, failed);
    QVERIFY(!progress({u"a"_s}).making);
}

void ReviewActionsTest::whatIsUnderWayIsTold()
{
    m_board.jobs = {reportJob(u"j"_s, u"running"_s, {u"a"_s}, 1)};
    m_board.reports = {aReport(u"r"_s, {u"a"_s}, 1)};
    const ReportProgress told = progress({u"a"_s}, {u"report"_s, u"stop-j"_s, u"open-r"_s});
    QVERIFY(told.asking && told.stopping && told.opening);
    const ReportProgress other = progress({u"a"_s}, {u"sync"_s, u"stop-k"_s, u"open-s"_s});
    QVERIFY(!other.asking && !other.stopping && !other.opening);
}

void ReviewActionsTest::theReportTellsItsMakerAndTime()
{
    m_board.reports = {aReport(u"r"_s, {u"a"_s}, double(m_now.addSecs(-600).toMSecsSinceEpoch()))};
    QCOMPARE(progress({u"a"_s}).by, u"Report by Teo · 10 min ago"_s);
    QCOMPARE(progress({u"a"_s}).when, u"10 min ago"_s);
    m_board.reports[0].by.reset();
    m_board.reports[0].at.reset();
    QCOMPARE(progress({u"a"_s}).by, u"Report by Claude"_s);
}

void ReviewActionsTest::theLinksStandInTheirOrder()
{
    FileItem file = aFile(u"a"_s);
    file.supplier = u"Ostrel Print"_s;
    file.links =
        Links{.gmail = u"https://m"_s, .drive = u"https://d"_s, .drive_folder = u"https://f"_s, .indd = u"https://i"_s};
    file.refs =
        QList<Ref>{{.role = u"latest"_s, .link = u"https://l"_s}, {.role = u"submitted"_s, .link = u"https://s"_s}};
    const QList<FileLink> expected{{u"Email"_s, u"envelope"_s, u"https://m"_s},
                                   {u"Ostrel Print file"_s, u"doc"_s, u"https://d"_s},
                                   {u"PO folder"_s, u"folder"_s, u"https://f"_s},
                                   {u"InDesign"_s, u"pencil.and.ruler"_s, u"https://i"_s},
                                   {u"What we sent"_s, u"arrow.up.doc"_s, u"https://s"_s},
                                   {u"Last print"_s, u"book.closed"_s, u"https://l"_s}};
    QCOMPARE(fileLinks(file), expected);
}

void ReviewActionsTest::whatIsMissingHasNoLink()
{
    const QList<FileLink> links = fileLinks(aFile(u"a"_s));
    QCOMPARE(links.size(), 6);
    QCOMPARE(links.at(1).title, u"Supplier file"_s);
    for (const FileLink &link : links)
        QCOMPARE(link.url, QString());
}

QTEST_GUILESS_MAIN(ReviewActionsTest)
#include "tst_reviewactions.moc"
