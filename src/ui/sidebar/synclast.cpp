#include "synclast.h"

#include "displayname.h"
#include "facts.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString newFiles(const Job &job)
{
    const qint64 number = job.result.value_or(JobResult()).new_files.value_or(0);
    return number > 0 ? QString::number(number) + u" new"_s : u"Nothing new"_s;
}

QString outcome(const Job &job, const BoardState *board, const Clock &clock)
{
    const QString when = u" · "_s + relativeTime(job.finished, clock);
    if (job.status != "done"_L1)
        return u"Last sync didn't finish"_s + when;
    return newFiles(job) + u" · "_s + isolated(displayName(job.requested_by, board)) + when;
}

} // namespace

SyncLast syncLast(const Job &job, const BoardState *board, const Clock &clock)
{
    SyncLast row{job.id,
                 u"xmark.circle.fill"_s,
                 Tone::Issue,
                 outcome(job, board, clock),
                 shownTexts(job.steps.value_or(QStringList())),
                 resultRow(job, board, clock)};
    if (job.status == "done"_L1) {
        row.symbol = needsALook(job) ? u"exclamationmark.circle.fill"_s : u"checkmark.circle.fill"_s;
        row.tone = needsALook(job) ? Tone::LookAt : Tone::Reviewed;
    }
    return row;
}

} // namespace vexal
