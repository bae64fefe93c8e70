#include "samplefolder.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

bool isQuiet(const Finding &finding)
{
    return finding.kind == "expected"_L1 || finding.kind == "pass"_L1;
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void countsAndTallyFollowTheFindings();
    void theBoardTellsOfTheFilesInTheDetails();
    void refsAreCountedFromThePages();
    void idsAreUnique();
    void everythingNamedIsThere();
    void nothingHappensAfterTheLastEvent();
    void everyKindOccurs();
    void everySortOfNoteOccurs();
    void filesOfEveryStatusAndSupplierAreThere();
    void theFirstFileOpensOnItsWrongWord();

private:
    const Sample &sample() const { return m_folder.sample(); }

    SampleFolder m_folder;
};

void RecordsTest::initTestCase()
{
    const QString problem = m_folder.make();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QCOMPARE(m_folder.inbox().size(), 2);
}

void RecordsTest::countsAndTallyFollowTheFindings()
{
    for (const FileDetail &detail : m_folder.all()) {
        Counts counts{detail.file.pages->size(), 0, 0, 0, 0, 0};
        Tally tally{0, 0, detail.findings.size()};
        for (const Finding &finding : detail.findings) {
            counts.expected = *counts.expected + (finding.kind == "expected"_L1 ? 1 : 0);
            if (isQuiet(finding))
                continue;
            counts.shown = *counts.shown + 1;
            counts.high = *counts.high + (finding.severity == "high"_L1 ? 1 : 0);
            counts.medium = *counts.medium + (finding.severity == "medium"_L1 ? 1 : 0);
            counts.low = *counts.low + (finding.severity == "low"_L1 ? 1 : 0);
            tally.open = *tally.open + (finding.state == "open"_L1 ? 1 : 0);
            tally.issues = *tally.issues + (finding.state == "issue"_L1 ? 1 : 0);
        }
        QCOMPARE(detail.file.counts, std::optional(counts));
        QCOMPARE(detail.file.tally, std::optional(tally));
        QCOMPARE(detail.file.page_count, std::optional<qint64>(detail.file.pages->size()));
    }
}

void RecordsTest::theBoardTellsOfTheFilesInTheDetails()
{
    QCOMPARE(sample().details.size(), sample().board.files.size());
    for (const FileItem &file : sample().board.files) {
        QVERIFY(sample().details.contains(file.id));
        FileItem detailed = sample().details.value(file.id).file;
        detailed.pages.reset();
        QCOMPARE(file, detailed);
    }
}

void RecordsTest::refsAreCountedFromThePages()
{
    for (const FileDetail &detail : m_folder.all())
        for (const Ref &ref : detail.file.refs.value_or(QList<Ref>())) {
            qint64 matched = 0;
            for (const Page &page : *detail.file.pages)
                matched += page.refs && page.refs->contains(ref.role) ? 1 : 0;
            QCOMPARE(ref.matched, std::optional(matched));
            QVERIFY(*ref.page_count >= matched);
        }
}

void RecordsTest::idsAreUnique()
{
    QSet<QString> ids;
    const auto add = [&ids](const QString &kind, const QString &id) {
        const QString known = kind + u' ' + id;
        QVERIFY2(!ids.contains(known), qPrintable(known));
        ids.insert(known);
    };
    for (const FileDetail &detail : m_folder.all()) {
        add(u"file"_s, detail.file.id);
        for (const Page &page : *detail.file.pages)
            add(u"page"_s, detail.file.id + QString::number(page.i));
        for (const Finding &finding : detail.findings)
            add(u"finding"_s, finding.id);
        for (const Note &note : detail.comments)
            add(u"note"_s, note.id);
    }
    for (const Job &job : sample().board.jobs)
        add(u"job"_s, job.id);
    for (const Report &report : sample().board.reports)
        add(u"report"_s, report.id);
    for (const Person &person : sample().board.users)
        add(u"person"_s, person.email);
    for (const Event &event : sample().board.events)
        add(u"event"_s, QString::number(event.id));
}

void RecordsTest::everythingNamedIsThere()
{
    QSet<QString> people;
    for (const Person &person : sample().board.users)
        people.insert(person.email);
    QVERIFY(people.contains(sample().board.me.email));
    const auto isKnown = [&people](const std::optional<QString> &email) { return !email || people.contains(*email); };
    const auto hasPage = [this](const QString &file, const std::optional<qint64> &page) {
        return sample().details.contains(file) &&
               (!page || (*page >= 0 && *page < sample().details.value(file).file.page_count));
    };
    for (const FileDetail &detail : m_folder.all()) {
        QVERIFY(isKnown(detail.file.status_by));
        QSet<QString> findings;
        for (const Finding &finding : detail.findings) {
            findings.insert(finding.id);
            QCOMPARE(finding.file_id, detail.file.id);
            QVERIFY(finding.page >= 0 && finding.page < detail.file.pages->size());
            QVERIFY(isKnown(finding.state_by));
            QCOMPARE(finding.state_by.has_value(), finding.state_at.has_value());
        }
        for (const Note &note : detail.comments) {
            QCOMPARE(note.file_id, detail.file.id);
            QVERIFY(people.contains(note.by) && isKnown(note.resolved_by));
            QVERIFY(hasPage(note.file_id, note.page));
            QVERIFY(!note.finding_id || findings.contains(*note.finding_id));
        }
    }
    for (const Event &event : sample().board.events)
        QVERIFY(isKnown(event.by) && (!event.file_id || hasPage(*event.file_id, event.page)));
    QSet<QString> jobs;
    QSet<QString> reports;
    for (const Report &report : sample().board.reports)
        reports.insert(report.id);
    for (const Job &job : sample().board.jobs) {
        jobs.insert(job.id);
        QVERIFY(isKnown(job.requested_by));
        QVERIFY(!job.result || !job.result->report_id || reports.contains(*job.result->report_id));
        for (const QString &file : job.args ? job.args->file_ids.value_or(QStringList()) : QStringList())
            QVERIFY(hasPage(file, {}));
    }
    for (const Report &report : sample().board.reports) {
        QVERIFY(jobs.contains(*report.job_id) && isKnown(report.by));
        for (const QString &file : report.file_ids)
            QVERIFY(hasPage(file, {}));
    }
    QVERIFY(sample().board.jobs.contains(*sample().board.sync));
}

void RecordsTest::nothingHappensAfterTheLastEvent()
{
    const QList<Event> &events = sample().board.events;
    const double last = events.first().at;
    const double first = last - 10 * 86'400'000.0;
    const auto sane = [first, last](const std::optional<double> &time) {
        return !time || (*time >= first && *time <= last);
    };
    for (qsizetype i = 1; i < events.size(); ++i) {
        QVERIFY(sane(events.at(i).at));
        QVERIFY2(events.at(i).at <= events.at(i - 1).at, qPrintable(QString::number(events.at(i).id)));
        QVERIFY(events.at(i).id < events.at(i - 1).id);
    }
    for (const Person &person : sample().board.users)
        QVERIFY(sane(person.last_seen));
    for (const Job &job : sample().board.jobs)
        QVERIFY(sane(job.created) && sane(job.started) && sane(job.finished) && job.created <= job.started &&
                job.started <= job.finished);
    for (const Report &report : sample().board.reports)
        QVERIFY(sane(report.at));
    for (const FileDetail &detail : m_folder.all()) {
        const FileItem &file = detail.file;
        QVERIFY(sane(file.received) && sane(file.created) && sane(file.status_at));
        QVERIFY(!file.created || file.received <= file.created);
        QVERIFY(!file.status_at || file.created <= file.status_at);
        for (const Finding &finding : detail.findings)
            QVERIFY2(sane(finding.state_at) && (!finding.state_at || file.created <= finding.state_at),
                     qPrintable(finding.id));
        for (const Note &note : detail.comments)
            QVERIFY2(sane(note.at) && sane(note.edited) && file.created <= note.at &&
                         (!note.edited || note.edited > note.at),
                     qPrintable(note.id));
    }
}

void RecordsTest::everyKindOccurs()
{
    QSet<QString> kinds;
    QSet<QString> severities;
    QSet<QString> states;
    for (const FileDetail &detail : sample().details)
        for (const Finding &finding : detail.findings) {
            kinds.insert(finding.kind);
            severities.insert(finding.severity);
            states.insert(finding.state);
        }
    QCOMPARE(kinds, QSet<QString>({u"words"_s, u"expected"_s, u"breaks"_s, u"hidden"_s, u"fonts"_s, u"size"_s,
                                   u"picture"_s, u"barcode"_s, u"spots"_s, u"pass"_s, u"extra_page"_s}));
    QCOMPARE(severities, QSet<QString>({u"high"_s, u"medium"_s, u"low"_s}));
    QCOMPARE(states, QSet<QString>({u"open"_s, u"issue"_s, u"fine"_s}));

    QSet<QString> events;
    for (const Event &event : sample().board.events)
        events.insert(event.kind);
    for (const QString &kind : {u"comment"_s, u"finding"_s, u"status"_s, u"sync"_s, u"synced"_s, u"new_file"_s,
                                u"report"_s, u"report_ready"_s, u"signin"_s, u"photo"_s, u"resolve"_s, u"stop"_s})
        QVERIFY2(events.contains(kind), qPrintable(kind));

    QSet<QString> jobs;
    for (const Job &job : sample().board.jobs)
        jobs.insert(job.kind + u' ' + job.status);
    for (const QString &job : {u"sync done"_s, u"report done"_s, u"report failed"_s, u"report stopped"_s})
        QVERIFY2(jobs.contains(job), qPrintable(job));
}

void RecordsTest::everySortOfNoteOccurs()
{
    QSet<QString> sorts;
    for (const FileDetail &detail : sample().details)
        for (const Note &note : detail.comments) {
            sorts.insert(!note.page ? u"file"_s : note.finding_id ? u"finding"_s : note.x ? u"pinned"_s : u"page"_s);
            if (note.resolved)
                sorts.insert(u"resolved"_s);
            if (note.edited)
                sorts.insert(u"edited"_s);
        }
    QCOMPARE(sorts, QSet<QString>({u"file"_s, u"finding"_s, u"pinned"_s, u"page"_s, u"resolved"_s, u"edited"_s}));
}

void RecordsTest::filesOfEveryStatusAndSupplierAreThere()
{
    QMap<QString, int> statuses;
    QSet<QString> suppliers;
    bool nameOnly = false;
    bool withoutOurs = false;
    for (const FileItem &file : sample().board.files) {
        ++statuses[file.status];
        if (file.supplier)
            suppliers.insert(*file.supplier);
        nameOnly |= !file.title && !file.component && file.filename;
        withoutOurs |= file.refs && file.refs->isEmpty();
    }
    QCOMPARE(statuses.keys(), QStringList({u"in_review"_s, u"new"_s, u"reviewed"_s}));
    QVERIFY(sample().board.files.size() >= 9);
    QVERIFY(suppliers.size() >= 3);
    QVERIFY(nameOnly && withoutOurs);
}

void RecordsTest::theFirstFileOpensOnItsWrongWord()
{
    const FileDetail fox = sample().details.value(sample().board.files.first().id);
    const auto high = std::find_if(fox.findings.begin(), fox.findings.end(),
                                   [](const Finding &f) { return f.severity == "high"_L1; });
    QVERIFY(high != fox.findings.end());
    QCOMPARE(high->title, u"“lantern” reads “lantem”"_s);
    QCOMPARE(fox.file.pages->at(high->page).label, std::optional(u"7"_s));
}

QTEST_MAIN(RecordsTest)
#include "records_test.moc"
