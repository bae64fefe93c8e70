#include "noterow.h"

#include "derived.h"

#include "displayname.h"
#include "facts.h"
#include "jobtexts.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

QString whenLine(const Note &note, const Clock &clock)
{
    return joinedFacts({note.page || note.finding_id ? QString() : u"Whole file"_s, relativeTime(note.at, clock),
                        note.edited ? u"edited"_s : QString()});
}

QString resolveHelp(const Note &note, const BoardState *board)
{
    return isResolved(note) ? u"Resolved by "_s + displayName(note.resolved_by, board) + u". Reopen it."_s
                            : u"Resolve"_s;
}

template <typename Wanted>
QList<Note> only(const QList<Note> &notes, Wanted wanted)
{
    QList<Note> some;
    std::copy_if(notes.cbegin(), notes.cend(), std::back_inserter(some), wanted);
    return some;
}

} // namespace

QList<Note> notesOfPage(const QList<Note> &notes, qint64 index)
{
    const auto isOn = [](std::optional<qint64> page) {
        return [page](const Note &note) { return !note.finding_id && note.page == page; };
    };
    const QList<Note> ofPage = only(notes, isOn(index));
    return index == 0 ? ofPage + only(notes, isOn({})) : ofPage;
}

QList<Note> notesOfFinding(const QList<Note> &notes, const QString &finding)
{
    return only(notes, [&finding](const Note &note) { return note.finding_id == finding; });
}

QList<NoteRow> noteRows(const QList<Note> &notes, const QHash<QString, int> &numbers, const QSet<QString> &editing,
                        const Telling &telling)
{
    QList<NoteRow> rows;
    for (const Note &note : notes) {
        const int number = numbers.value(note.id);
        rows.append({note.id, number > 0 ? QString::number(number) : QString(), displayName(note.by, telling.board),
                     whenLine(note, telling.clock), shownText(note.text), isResolved(note),
                     resolveHelp(note, telling.board), telling.busy.contains(u"n-"_s + note.id),
                     editing.contains(note.id)});
    }
    return rows;
}

} // namespace vexal
