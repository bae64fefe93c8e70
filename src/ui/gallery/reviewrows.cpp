#include "reviewrows.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const QDateTime noon({2026, 11, 20}, {12, 0}, Qt::UTC);
const Clock clock{[] { return noon; }, QTimeZone::utc(), QLocale::c()};

std::optional<double> before(int minutes)
{
    return double(noon.addSecs(-60 * minutes).toMSecsSinceEpoch());
}

FindingRow rowOf(const Finding &finding)
{
    FileItem file;
    file.supplier = u"Ostrel Print"_s;
    return findingRow(finding, file, {.clock = clock, .focus = u"focused"_s});
}

Finding finding(const QString &severity, const QString &title)
{
    Finding finding;
    finding.severity = severity;
    finding.title = title;
    finding.state = u"open"_s;
    return finding;
}

FindingRow focusedRow()
{
    Finding found = finding(u"high"_s, u"“lantern” reads “lantem”"_s);
    found.id = u"focused"_s;
    found.detail = u"The r and n have run together on line 2."_s;
    found.before = u"lit every lantern"_s;
    found.after = u"lit every lantem"_s;
    found.box = Box{0, 0, 1, 1};
    found.state = u"issue"_s;
    found.state_by = u"mira@lanternhouse.example"_s;
    found.state_at = before(6);
    return rowOf(found);
}

FindingRow openRow()
{
    Finding found = finding(u"medium"_s, u"A lantern is gone from the line"_s);
    found.detail = u"Ours has five lanterns on the line; this page has four."_s;
    found.box = Box{0, 0, 1, 1};
    return rowOf(found);
}

FindingRow fineRow()
{
    Finding found = finding(u"low"_s, u"The bee sits 2 mm lower in its circle"_s);
    found.state = u"fine"_s;
    found.state_by = u"anselm@lanternhouse.example"_s;
    found.state_at = before(20 * 60);
    return rowOf(found);
}

NoteRow noteRow(const QString &number, const QString &by, int minutes, const QString &text, bool edited = false)
{
    Note note;
    note.id = u"n"_s;
    note.page = 6;
    note.text = text;
    note.by = by + u"@lanternhouse.example"_s;
    note.at = *before(minutes);
    if (edited)
        note.edited = note.at;
    NoteRow row = noteRows({note}, {}, {}, {.clock = clock}).constFirst();
    row.number = number;
    return row;
}

} // namespace

ReviewRows::ReviewRows(QObject *parent)
    : QObject(parent)
    , m_focused(focusedRow())
    , m_open(openRow())
    , m_fine(fineRow())
    , m_settled(rowOf(finding(u"low"_s, u"Every font of ours is in the file"_s)))
    , m_pinned(noteRow(u"1"_s, u"teo"_s, 18, u"Ask for a fresh proof?"_s, true))
    , m_resolved(noteRow({}, u"lin"_s, 20 * 60, u"Check the gutter once more."_s))
    , m_edited(noteRow(u"2"_s, u"mira"_s, 2, u"Five lanterns, please."_s))
    , m_onPage{composerContext(false, {}, u"7"_s), false, composerPlaceholder(false)}
    , m_onPin{composerContext(true, {}, u"7"_s), true, composerPlaceholder(false)}
    , m_onItsWay{composerContext(false, {}, u"7"_s), false, {}, true, true}
    , m_other{u"8"_s, u"Page 9"_s, u"2 to look at"_s, 8}
{
    m_resolved.resolved = true;
    m_edited.editing = true;
}

} // namespace vexal
