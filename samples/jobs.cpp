#include "office.h"

#include "people.h"
#include "plan.h"

using namespace Qt::StringLiterals;

namespace vexal::sample {

namespace {

Job job(const QString &id, const QString &kind, const QString &status, const QString &by, double created,
        double finished)
{
    Job out;
    out.id = id;
    out.kind = kind;
    out.status = status;
    out.requested_by = by;
    out.created = created;
    out.started = created + 20'000;
    out.finished = finished;
    out.beat = finished;
    return out;
}

Job reportJob(const QString &id, const QString &status, const QString &by, double created, double finished,
              const QStringList &files, const QStringList &steps, const QString &report = {})
{
    Job out = job(id, u"report"_s, status, by, created, finished);
    out.args = JobArgs{files};
    out.steps = steps;
    if (!report.isEmpty())
        out.result = JobResult{.new_files = {},
                               .report_id = report,
                               .drive_link = u"https://drive.example/file/"_s + report,
                               .cost = 0.18};
    return out;
}

/// A sync that left something to look at.
Job yesterdaysSync()
{
    Job sync = job(u"job-109"_s, u"sync"_s, u"done"_s, who::mira(), moment(19, 15, 50), moment(19, 15, 59));
    sync.steps = {u"Read 9 mails from suppliers"_s, u"Found 1 new proof in the mail"_s, u"Filed it to Drive"_s};
    sync.summary = Summary{QStringList{u"Filed 1 proof from Pellow Cartons"_s}, QStringList{},
                           QStringList{u"Nothing of ours fits Little Harbor 48-piece tray"_s}};
    sync.result = JobResult{.new_files = 1, .report_id = {}, .drive_link = {}, .cost = 0.22};
    return sync;
}

Report report(const QString &id, const QString &job, const QStringList &files, const QString &title, qint64 size,
              const QString &by, double at)
{
    return {id, job, files, title, size, u"https://drive.example/file/"_s + id, by, at};
}

} // namespace

QList<Job> jobs()
{
    Job failed = reportJob(u"job-107"_s, u"failed"_s, who::lin(), moment(19, 12, 30), moment(19, 12, 41),
                           {u"slowpost"_s}, {u"Collected 6 findings"_s, u"Laid out page 1"_s});
    failed.step = u"Laying out page 2"_s;
    return {lastSync(),
            reportJob(u"job-119"_s, u"done"_s, who::mira(), moment(20, 15, 9), moment(20, 15, 12),
                      {u"fox"_s, u"moth"_s},
                      {u"Collected 17 findings"_s, u"Laid out 5 pages"_s, u"Saved it to Drive"_s}, u"rep-33"_s),
            yesterdaysSync(),
            reportJob(u"job-108"_s, u"done"_s, who::teo(), moment(19, 15, 1), moment(19, 15, 4), {u"fox"_s},
                      {u"Collected 14 findings"_s, u"Laid out 4 pages"_s, u"Saved it to Drive"_s}, u"rep-31"_s),
            failed,
            reportJob(u"job-106"_s, u"stopped"_s, who::lin(), moment(19, 12, 16), moment(19, 12, 20), {u"kites"_s},
                      {u"Collected 3 findings"_s}),
            reportJob(u"job-103"_s, u"done"_s, who::anselm(), moment(18, 17, 26), moment(18, 17, 30),
                      {u"tidepool"_s, u"bread"_s, u"songs"_s},
                      {u"Collected 17 findings"_s, u"Laid out 6 pages"_s, u"Saved it to Drive"_s}, u"rep-30"_s)};
}

QList<Report> reports()
{
    return {report(u"rep-33"_s, u"job-119"_s, {u"fox"_s, u"moth"_s}, u"The Lantern Fox and Moth Carnival"_s, 2'418'770,
                   who::mira(), moment(20, 15, 12)),
            report(u"rep-31"_s, u"job-108"_s, {u"fox"_s}, u"The Lantern Fox Interior"_s, 1'906'114, who::teo(),
                   moment(19, 15, 4)),
            report(u"rep-30"_s, u"job-103"_s, {u"tidepool"_s, u"bread"_s, u"songs"_s}, u"Three proofs, 18 November"_s,
                   3'120'452, who::anselm(), moment(18, 17, 30))};
}

} // namespace vexal::sample
