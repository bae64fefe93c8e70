#include "localboard.h"
#include "pdfreader.h"
#include "visitor.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vexal;

/// The board as people first meet it: started from the sample.
class SampleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void itsNewestTimeIsNow();
    void everyPictureThatItNamesIsThere();
    void twoSyncsBringTheTwoProofsOfTheInbox();
    void aReportOnItsLargestFileOpens();
    void itsReportsOpen();

private:
    bool isAtRest();
    QList<FileDetail> details();

    std::unique_ptr<LocalBoard> m_board;
    std::unique_ptr<Visitor> m_lin;
};

namespace {

const QString lin = u"lin@lanternhouse.example"_s;

/// The keys of every picture that \a detail names.
QStringList keysOf(const FileDetail &detail)
{
    QStringList keys = {detail.file.key.value_or(QString()), detail.file.thumb.value_or(QString())};
    for (const Page &page : detail.file.pages.value_or(QList<Page>{})) {
        keys.append({page.img.value_or(QString()), page.thumb.value_or(QString())});
        for (const RefPage &ref : page.refs.value_or(QMap<QString, RefPage>{}))
            keys.append(ref.img.value_or(QString()));
    }
    keys.removeAll(QString());
    return keys;
}

double systemNow()
{
    return double(QDateTime::currentMSecsSinceEpoch());
}

} // namespace

void SampleTest::initTestCase()
{
    m_board =
        std::make_unique<LocalBoard>(LocalBoardOptions{.seed = QStringLiteral(VEXAL_SAMPLE_FOLDER), .stepTime = 1ms});
    const auto problem = m_board->start();
    QVERIFY2(!problem, qUtf8Printable(problem.value_or(QString())));
    m_lin = std::make_unique<Visitor>(m_board->port(), m_board->signInAs(lin));
}

bool SampleTest::isAtRest()
{
    return QTest::qWaitFor(
        [this] {
            const auto jobs = m_board->state(lin).jobs;
            return std::none_of(jobs.begin(), jobs.end(),
                                [](const Job &job) { return job.status == "queued"_L1 || job.status == "running"_L1; });
        },
        60'000);
}

QList<FileDetail> SampleTest::details()
{
    QList<FileDetail> details;
    for (const FileItem &file : m_lin->board().files)
        details.append(m_lin->file(file.id));
    return details;
}

void SampleTest::itsNewestTimeIsNow()
{
    const auto board = m_lin->board();
    double newest = 0;
    for (const Event &event : board.events)
        newest = std::max(newest, event.at);
    QVERIFY(newest <= systemNow());
    QVERIFY(newest > systemNow() - 60'000);
    for (const Person &person : board.users)
        QVERIFY(person.last_seen.value_or(0) <= systemNow());
}

void SampleTest::everyPictureThatItNamesIsThere()
{
    QStringList keys;
    for (const FileDetail &detail : details())
        keys += keysOf(detail);
    for (const Person &person : m_lin->board().users)
        keys += person.photo ? QStringList(*person.photo) : QStringList();
    QVERIFY(keys.size() > 60);
    for (const QString &key : keys) {
        const auto reply = m_lin->get(u"/api/blob/"_s + key);
        QVERIFY2(reply.status == 200 && reply.type.startsWith("image/"), qUtf8Printable(key));
    }
}

void SampleTest::twoSyncsBringTheTwoProofsOfTheInbox()
{
    const auto before = m_lin->board().files.size();
    for (qsizetype sync = 1; sync <= 2; ++sync) {
        QCOMPARE(m_lin->post(u"/api/jobs"_s, QJsonObject{{u"kind"_s, u"sync"_s}}).status, 200);
        QVERIFY(isAtRest());
        const auto board = m_lin->board();
        QCOMPARE(board.files.size(), before + sync);
        QCOMPARE(board.files[0].status, u"new"_s);
        const auto came = m_lin->file(board.files[0].id);
        QVERIFY(!came.findings.isEmpty());
        for (const QString &key : keysOf(came))
            QVERIFY2(m_lin->get(u"/api/blob/"_s + key).status == 200, qUtf8Printable(key));
    }
}

void SampleTest::aReportOnItsLargestFileOpens()
{
    const auto all = details();
    const auto largest = *std::max_element(all.begin(), all.end(), [](const FileDetail &a, const FileDetail &b) {
        return a.file.pages->size() < b.file.pages->size();
    });
    QVERIFY(m_board->jobs().askReport(lin, {largest.file.id}));
    QVERIFY(isAtRest());
    const auto report = m_lin->board().reports[0];
    const auto pdf = m_lin->get(u"/api/reports/"_s + report.id + u"/pdf"_s).body;
    QCOMPARE(report.size, pdf.size());
    QVERIFY(pdf.size() < 8'000'000);
    QVERIFY(sheetsOfPdf(pdf).size() > largest.file.pages->size() / 3);
    const auto text = textOfPdf(pdf);
    for (const Page &page : *largest.file.pages)
        QVERIFY(text.contains(u"Page "_s + page.label.value_or(QString::number(page.i + 1))));
}

void SampleTest::itsReportsOpen()
{
    const auto reports = m_lin->board().reports;
    QVERIFY(reports.size() >= 3);
    for (const Report &report : reports) {
        const auto pdf = m_lin->get(u"/api/reports/"_s + report.id + u"/pdf"_s);
        QCOMPARE(pdf.status, 200);
        QVERIFY(textOfPdf(pdf.body).contains(*report.title));
    }
}

QTEST_MAIN(SampleTest)
#include "tst_sample.moc"
