#include "findingrow.h"

#include "derived.h"
#include "displayname.h"
#include "facts.h"
#include "jobtexts.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString judgedLine(const Finding &finding, const Telling &telling)
{
    if (!finding.state_by)
        return {};
    return joinedFacts({displayName(finding.state_by, telling.board), relativeTime(finding.state_at, telling.clock)});
}

bool hasPlace(const Finding &finding)
{
    return finding.box && finding.box->size() == 4;
}

} // namespace

QString severityTag(const QString &severity)
{
    if (severity == "high"_L1)
        return u"Fix"_s;
    return severity == "medium"_L1 ? u"Check"_s : u"Minor"_s;
}

Tone::Value severityTone(const QString &severity)
{
    if (severity == "high"_L1)
        return Tone::Issue;
    return severity == "medium"_L1 ? Tone::LookAt : Tone::Neutral;
}

QString stateAfter(const QString &state, const QString &pressed)
{
    return state == pressed ? u"open"_s : pressed;
}

QString referencePhrase(const QString &against)
{
    return against == "submitted"_L1 ? u"vs what we sent"_s : u"vs last print"_s;
}

FindingRow findingRow(const Finding &finding, const FileItem &file, const Telling &telling)
{
    FindingRow row;
    row.key = finding.id;
    row.tag = severityTag(finding.severity);
    row.tone = severityTone(finding.severity);
    row.title = shownText(finding.title);
    row.detail = shownText(finding.detail);
    row.compared = finding.before && finding.after;
    if (row.compared) {
        const Passages sides = passages(*finding.before, *finding.after);
        row.ours = sides.ours;
        row.theirs = sides.theirs;
    }
    row.supplier = supplierName(file);
    row.placed = hasPlace(finding);
    row.focused = finding.id == telling.focus;
    row.issue = finding.state == "issue"_L1;
    row.fine = finding.state == "fine"_L1;
    row.judged = judgedLine(finding, telling);
    row.busy = telling.busy.contains(finding.id);
    return row;
}

} // namespace vexal
