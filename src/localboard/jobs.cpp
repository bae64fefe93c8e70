#include "jobs.h"

#include "derived.h"
#include "synctexts.h"

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr qsizetype longestLine = 20;
constexpr auto unfinished = "WHERE json ->> 'status' IN ('queued', 'running') ORDER BY place";

bool isOver(const Job &job)
{
    return job.status != "queued"_L1 && job.status != "running"_L1 && job.status != "stuck"_L1;
}

QList<QString> texts(const QList<Step> &done)
{
    QList<QString> all;
    for (const Step &step : done)
        all.append(step.done);
    return all;
}

/// The texts in their order, each where it comes first.
QList<QString> eachOnce(QList<QString> all)
{
    all.removeDuplicates();
    return all;
}

QString reportSubject(const QList<FileItem> &files)
{
    return files.size() == 1 ? displayTitle(files.first()) : u"%1 files"_s.arg(files.size());
}

} // namespace

Outcome<Job> Jobs::askSync(const QString &by)
{
    Change change(m_ledger);
    const auto line = m_ledger.jobs.all(unfinished);
    if (std::any_of(line.begin(), line.end(), [](const Job &job) { return job.kind == "sync"_L1; }))
        return refused(u"A sync is already under way."_s);
    return ask(change, {.kind = u"sync"_s, .requested_by = by},
               {.by = by, .kind = u"sync"_s, .text = u"Started a sync"_s});
}

Outcome<Job> Jobs::askReport(const QString &by, const QList<QString> &fileIds)
{
    Change change(m_ledger);
    QList<FileItem> files;
    const QList<QString> once = eachOnce(fileIds);
    for (const QString &id : once) {
        auto file = m_ledger.files.find(id);
        if (!file)
            return refused(u"One of those files isn't on the board."_s);
        files.append(*std::move(file));
    }
    if (files.isEmpty())
        return refused(u"A report needs at least one file."_s);
    return ask(change, {.kind = u"report"_s, .requested_by = by, .args = JobArgs{once}},
               {.by = by,
                .kind = u"report"_s,
                .file_id = once.size() == 1 ? std::optional(once.first()) : std::nullopt,
                .text = u"Asked for a report on "_s + reportSubject(files)});
}

Outcome<Job> Jobs::ask(Change &change, Job job, const Event &event)
{
    if (m_ledger.jobs.all(unfinished).size() >= longestLine)
        return refused(u"There is a lot in line already. Try again in a while."_s);
    job.id = newId("j");
    job.status = u"queued"_s;
    job.created = change.at();
    m_ledger.jobs.put(job);
    change.tell(event);
    change.commit();
    onAsked();
    return job;
}

Outcome<Job> Jobs::stop(const QString &by, const QString &id)
{
    Change change(m_ledger);
    auto job = m_ledger.jobs.find(id);
    if (!job)
        return unknown(u"That job isn't on the board."_s);
    if (isOver(*job))
        return refused(u"That has ended already."_s);
    end(change, *job, u"stopped"_s);
    change.tell({.by = by,
                 .kind = u"stop"_s,
                 .text = job->kind == "sync"_L1 ? u"Stopped the sync"_s : u"Stopped the report"_s});
    change.commit();
    onAsked();
    return *m_ledger.jobs.find(id);
}

std::optional<Job> Jobs::begin()
{
    Change change(m_ledger);
    auto job = m_ledger.jobs.first(unfinished);
    if (!job)
        return job;
    job->status = u"running"_s;
    job->started = change.at();
    job->beat = change.at();
    job->steps.emplace();
    m_ledger.jobs.put(*job);
    change.commit();
    return job;
}

bool Jobs::isRunning(const QString &id)
{
    const std::lock_guard lock(m_ledger.mutex);
    return running(id).has_value();
}

bool Jobs::enter(const QString &id, const QList<Step> &done, const Step &step)
{
    Change change(m_ledger);
    auto job = running(id);
    if (!job)
        return false;
    job->step = step.doing;
    job->steps = texts(done) + QList{step.doing};
    job->beat = change.at();
    m_ledger.jobs.put(*job);
    change.commit();
    return true;
}

std::optional<FileDetail> Jobs::nextProof()
{
    const std::lock_guard lock(m_ledger.mutex);
    return m_ledger.inbox.first("ORDER BY place");
}

void Jobs::finishSync(const QString &id, const QList<Step> &steps, const std::optional<FileDetail> &proof)
{
    Change change(m_ledger);
    auto job = running(id);
    if (!job)
        return;
    if (proof)
        takeIn(change, *proof);
    job->steps = texts(steps);
    job->summary = syncSummary(proof);
    job->result = JobResult{.new_files = proof ? 1 : 0};
    end(change, *job, u"done"_s);
    change.tell({.kind = u"synced"_s, .text = syncedText(proof)});
    change.commit();
}

/// The proof comes out of the inbox and onto the board.
void Jobs::takeIn(Change &change, FileDetail proof)
{
    for (const Finding &finding : proof.findings)
        m_ledger.findings.put(finding);
    for (const Note &note : proof.comments)
        m_ledger.notes.put(note);
    proof.file.status = u"new"_s;
    proof.file.received = change.at();
    proof.file.created = change.at();
    m_ledger.inbox.remove(proof.file.id);
    change.keep(proof.file);
    change.tell({.kind = u"new_file"_s, .file_id = proof.file.id, .text = newFileText(proof.file)});
}

void Jobs::finishReport(const QString &id, const QList<Step> &steps, const QString &title, const QByteArray &pdf)
{
    Change change(m_ledger);
    auto job = running(id);
    if (!job)
        return;
    const Report report{.id = newId("r"),
                        .job_id = id,
                        .file_ids = job->args.value_or(JobArgs{}).file_ids.value_or(QList<QString>{}),
                        .title = title,
                        .size = pdf.size(),
                        .by = job->requested_by,
                        .at = change.at()};
    m_ledger.reports.put(report);
    m_ledger.putBlob(pdfKey(report.id), pdf);
    job->steps = texts(steps);
    job->result = JobResult{.report_id = report.id};
    end(change, *job, u"done"_s);
    change.tell({.kind = u"report_ready"_s,
                 .file_id = report.file_ids.size() == 1 ? std::optional(report.file_ids.first()) : std::nullopt,
                 .text = title + u" is ready"_s});
    change.commit();
}

void Jobs::fail(const QString &id)
{
    Change change(m_ledger);
    const auto job = running(id);
    if (!job)
        return;
    end(change, *job, u"failed"_s);
    change.commit();
}

void Jobs::end(Change &change, Job job, const QString &status)
{
    job.status = status;
    job.finished = change.at();
    job.step.reset();
    m_ledger.jobs.put(job);
}

std::optional<Job> Jobs::running(const QString &id)
{
    auto job = m_ledger.jobs.find(id);
    return job && job->status == "running"_L1 ? job : std::nullopt;
}

QString pdfKey(const QString &id)
{
    return u"reports/"_s + id + u".pdf"_s;
}

} // namespace vexal::local
