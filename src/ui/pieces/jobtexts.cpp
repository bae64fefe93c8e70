#include "jobtexts.h"

#include "derived.h"
#include "displayname.h"
#include "facts.h"
#include "relativetime.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr qsizetype mostSteps = 4;

constexpr std::array phrases{"reading the fine print"_L1, "squinting at kerning"_L1, "checking the quote marks"_L1,
                             "counting the lines"_L1, "holding it up to the light"_L1};

// The worker machine may name the step under way beside those before it, or as the last of them.
QStringList stepsSoFar(const Job &job)
{
    QStringList steps = job.steps.value_or(QStringList());
    const QString current = job.step.value_or(QString());
    if (!current.isEmpty() && (steps.isEmpty() || steps.constLast() != current))
        steps.append(current);
    return shownTexts(steps);
}

QString started(const Job &job, const BoardState *board, const Clock &clock)
{
    const QString by = u"Started by "_s + isolated(displayName(job.requested_by, board));
    return job.started ? by + u' ' + relativeTime(job.started, clock) : by;
}

ResultRow heading(const Job &job)
{
    if (needsALook(job))
        return {u"exclamationmark.circle.fill"_s, u"Needs a look"_s, Tone::LookAt, {}, {}};
    if (job.status == "done"_L1)
        return {u"checkmark.circle.fill"_s, u"Done"_s, Tone::Reviewed, {}, {}};
    if (job.status == "stopped"_L1)
        return {u"stop.circle.fill"_s, u"Stopped"_s, Tone::Neutral, {}, {}};
    return {u"xmark.circle.fill"_s, u"Didn't finish"_s, Tone::Issue, {}, {}};
}

QList<ResultLine> listed(const std::optional<QList<QString>> &texts, const QString &symbol, Tone::Value tone)
{
    QList<ResultLine> lines;
    for (const QString &text : texts.value_or(QStringList()))
        lines.append({symbol, shownText(text), tone});
    return lines;
}

QList<ResultLine> resultLines(const JobResult &result, const Summary &summary)
{
    QList<ResultLine> lines;
    if (const qint64 files = result.new_files.value_or(0); files > 0)
        lines.append({u"checkmark"_s, counted(files, u"new file"_s), Tone::Reviewed});
    lines += listed(summary.done, u"checkmark"_s, Tone::Reviewed);
    lines += listed(summary.changed, u"checkmark"_s, Tone::Reviewed);
    if (result.drive_link)
        lines.append({u"folder"_s, u"Filed to Drive"_s, Tone::Neutral});
    return lines + listed(summary.check, u"exclamationmark"_s, Tone::LookAt);
}

} // namespace

QList<QString> shownTexts(QList<QString> texts)
{
    std::transform(texts.cbegin(), texts.cend(), texts.begin(), [](const QString &text) { return shownText(text); });
    return texts;
}

QVariantList ResultRow::linesForQml() const
{
    QVariantList list;
    for (const ResultLine &line : lines)
        list.append(QVariant::fromValue(line));
    return list;
}

JobStage::Value jobStage(QStringView status)
{
    if (status == u"queued")
        return JobStage::InLine;
    if (status == u"running")
        return JobStage::Running;
    return status == u"stuck" ? JobStage::Stuck : JobStage::Over;
}

JobRow jobRow(const Job &job, const BoardState *board, const QSet<QString> &busy, const Clock &clock)
{
    return {job.id, jobStage(job.status), stepsSoFar(job), started(job, board, clock),
            busy.contains(u"stop-"_s + job.id)};
}

ResultRow resultRow(const Job &job, const BoardState *board, const Clock &clock)
{
    ResultRow row = heading(job);
    row.by = joinedFacts({u"By "_s + displayName(job.requested_by, board), relativeTime(job.finished, clock)});
    row.lines = resultLines(job.result.value_or(JobResult()), job.summary.value_or(Summary()));
    return row;
}

bool needsALook(const Job &job)
{
    return job.status == "done"_L1 && job.summary && !job.summary->check.value_or(QStringList()).isEmpty();
}

QString relativeTime(const std::optional<double> &milliseconds, const Clock &clock)
{
    return milliseconds ? relativeTime(momentOf(*milliseconds), clock) : QString();
}

QList<QString> JobTexts::listedSteps(const QList<QString> &steps)
{
    return steps.last(qMin(steps.size(), mostSteps));
}

QString JobTexts::earlierSteps(const QList<QString> &steps)
{
    const qsizetype earlier = steps.size() - mostSteps;
    return earlier > 0 ? counted(earlier, u"earlier step"_s) : QString();
}

QString JobTexts::workingPhrase(int n)
{
    return phrases[static_cast<unsigned>(n) % phrases.size()];
}

QString JobTexts::stuckAdvice(const QString &title)
{
    return u"It may be asleep or off Wi-Fi. Press "_s + title + u" to try again, or Stop."_s;
}

} // namespace vexal
