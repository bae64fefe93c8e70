#include "reviewactions.h"

#include "derived.h"
#include "facts.h"
#include "jobtexts.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

bool coversExactly(const QStringList &ids, const QSet<QString> &files)
{
    return QSet<QString>(ids.cbegin(), ids.cend()) == files;
}

/// The latest of the items that `counts` takes. Of two of one moment, or without any, the first: lists come newest
/// first.
template <typename Item, typename Counts, typename Moment>
const Item *newest(const QList<Item> &items, Counts counts, Moment moment)
{
    const Item *found = nullptr;
    for (const Item &item : items) {
        if (counts(item) && (!found || moment(item) > moment(*found)))
            found = &item;
    }
    return found;
}

constexpr double never = std::numeric_limits<double>::lowest();

} // namespace

const Job *reportJobOf(const QSet<QString> &files, const BoardState &board)
{
    const auto counts = [&](const Job &job) {
        return job.kind == "report"_L1 && job.args && job.args->file_ids && coversExactly(*job.args->file_ids, files);
    };
    return newest(board.jobs, counts, [](const Job &job) { return job.created.value_or(never); });
}

const Report *reportOf(const QSet<QString> &files, const BoardState &board)
{
    const auto counts = [&](const Report &report) { return coversExactly(report.file_ids, files); };
    return newest(board.reports, counts, [](const Report &report) { return report.at.value_or(never); });
}

ReportProgress reportProgress(const QSet<QString> &files, const BoardState &board, const QSet<QString> &busy,
                              const Clock &clock, const std::function<QString(const std::optional<QString> &)> &name)
{
    ReportProgress progress;
    progress.asking = busy.contains(u"report"_s);
    if (const Job *job = reportJobOf(files, board)) {
        const JobStage::Value stage = jobStage(job->status);
        progress.making = stage == JobStage::InLine || stage == JobStage::Running;
        progress.job = job->id;
        const QString step = shownText(job->step.value_or(QString()));
        progress.step = stage == JobStage::InLine ? u"Report in line"_s
                        : step.isEmpty()          ? u"Making the report"_s
                                                  : step;
        progress.stopping = busy.contains(u"stop-"_s + job->id);
        progress.failed = stage == JobStage::Stuck || job->status == "failed"_L1;
    }
    if (const Report *report = reportOf(files, board)) {
        progress.report = report->id;
        progress.when = relativeTime(report->at, clock);
        progress.by = joinedFacts({u"Report by "_s + name(report->by), progress.when});
        progress.opening = busy.contains(u"open-"_s + report->id);
    }
    return progress;
}

} // namespace vexal
