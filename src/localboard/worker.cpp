#include "worker.h"

#include "reportcontent.h"
#include "reportpdf.h"
#include "synctexts.h"

#include <QLoggingCategory>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vexal::local {

namespace {

Q_LOGGING_CATEGORY(log, "vexal.board.worker", QtInfoMsg)

/// After the ledger failed: a full disk may be emptied.
constexpr auto breather = 5s;

} // namespace

Worker::Worker(Ledger &ledger, Jobs &jobs, std::chrono::milliseconds stepTime)
    : m_ledger(ledger)
    , m_jobs(jobs)
    , m_stepTime(stepTime)
    , m_thread([this](const std::stop_token &leave) { work(leave); })
{
}

Worker::~Worker() = default;

void Worker::wake()
{
    {
        const std::lock_guard lock(m_mutex);
        m_news = true;
    }
    m_woken.notify_all();
}

void Worker::work(const std::stop_token &leave)
{
    while (!leave.stop_requested()) {
        try {
            if (takeOne(leave))
                continue;
            std::unique_lock lock(m_mutex);
            m_woken.wait(lock, leave, [this] { return std::exchange(m_news, false); });
        } catch (const DatabaseError &error) {
            qCWarning(log) << "The worker can't reach the board:" << error.what();
            isWokenBefore(leave, Clock::now() + breather);
        }
    }
}

/// Does the first job in line; false when there is none.
bool Worker::takeOne(const std::stop_token &leave)
{
    const auto job = m_jobs.begin();
    if (!job)
        return false;
    try {
        attempt(leave, *job);
    } catch (const DatabaseError &error) {
        qCWarning(log) << "A job failed:" << error.what();
        m_jobs.fail(job->id);
    }
    return true;
}

void Worker::attempt(const std::stop_token &leave, const Job &job)
{
    if (job.kind == "sync"_L1)
        sync(leave, job);
    else if (job.kind == "report"_L1)
        report(leave, job);
    else
        m_jobs.fail(job.id);
}

void Worker::sync(const std::stop_token &leave, const Job &job)
{
    const auto proof = m_jobs.nextProof();
    const auto steps = syncSteps(proof);
    for (qsizetype i = 0; i < steps.size(); ++i) {
        if (!go(leave, job, steps.first(i), steps[i]))
            return;
    }
    m_jobs.finishSync(job.id, steps, proof);
}

void Worker::report(const std::stop_token &leave, const Job &job)
{
    const auto content = reportContent(m_ledger, job.args.value_or(JobArgs{}).file_ids.value_or(QList<QString>{}),
                                       job.requested_by.value_or(QString()));
    if (content.files.isEmpty()) {
        m_jobs.fail(job.id);
        return;
    }
    const auto steps = reportSteps(content.files);
    if (!go(leave, job, {}, steps[0]) || !go(leave, job, steps.first(1), steps[1]))
        return;
    const auto pdf = reportPdf(content, [&](int page) {
        const Step step{u"Laying out page %1"_s.arg(page), {}};
        return !leave.stop_requested() && m_jobs.enter(job.id, steps.first(1), step);
    });
    if (pdf.isEmpty() || !go(leave, job, steps.first(2), steps[2]))
        return;
    m_jobs.finishReport(job.id, steps, content.title, pdf);
}

/// Goes into \a step and stays there for its time; false when the job was stopped or the worker is to leave.
bool Worker::go(const std::stop_token &leave, const Job &job, const QList<Step> &done, const Step &step)
{
    if (!m_jobs.enter(job.id, done, step))
        return false;
    const auto end = Clock::now() + m_stepTime;
    while (isWokenBefore(leave, end)) {
        if (!m_jobs.isRunning(job.id))
            return false;
    }
    return !leave.stop_requested();
}

bool Worker::isWokenBefore(const std::stop_token &leave, Clock::time_point end)
{
    std::unique_lock lock(m_mutex);
    return m_woken.wait_until(lock, leave, end, [this] { return std::exchange(m_news, false); });
}

} // namespace vexal::local
