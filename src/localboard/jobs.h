#pragma once

#include "ledger.h"
#include "outcome.h"

#include <functional>

namespace vexal::local {

/// One step of a job, as people read it: while it is under way, and afterwards.
struct Step
{
    QString doing;
    QString done;
};

/// The jobs of the board: people ask for them and stop them, the worker goes through them one at a time. A job that was
/// under way when the board ended is begun again. Throws DatabaseError.
class Jobs
{
public:
    explicit Jobs(Ledger &ledger)
        : m_ledger(ledger)
    {
    }

    /// Called, on the thread that asked, when there is something new in line and when a job was stopped.
    std::function<void()> onAsked = [] {};

    /// A sync for \a by; refused while another is in line or under way.
    Outcome<Job> askSync(const QString &by);

    /// A report on the files \a fileIds for \a by. A file that is named twice is in it once.
    Outcome<Job> askReport(const QString &by, const QList<QString> &fileIds);

    /// Stops the job \a id, which must not have ended.
    Outcome<Job> stop(const QString &by, const QString &id);

    /// Begins the first job in line, if there is one.
    std::optional<Job> begin();

    /// Whether the job \a id is under way: it is not when it was stopped.
    bool isRunning(const QString &id);

    /// The worker has done \a done and is now at \a step. False when the job was stopped.
    bool enter(const QString &id, const QList<Step> &done, const Step &step);

    /// The proof that the next sync brings, if one is left.
    std::optional<FileDetail> nextProof();

    /// The sync \a id has gone through \a steps and brought \a proof or nothing. Does nothing when it was stopped.
    void finishSync(const QString &id, const QList<Step> &steps, const std::optional<FileDetail> &proof);

    /// The report \a id has gone through \a steps and made \a pdf. Does nothing when it was stopped.
    void finishReport(const QString &id, const QList<Step> &steps, const QString &title, const QByteArray &pdf);

    /// The job \a id could not be done. Does nothing when it was stopped.
    void fail(const QString &id);

private:
    Outcome<Job> ask(Change &change, Job job, const Event &event);
    void takeIn(Change &change, FileDetail proof);
    void end(Change &change, Job job, const QString &status);
    std::optional<Job> running(const QString &id);

    Ledger &m_ledger;
};

/// Under which key the PDF of the report \a id lies.
QString pdfKey(const QString &id);

} // namespace vexal::local
