#include "review.h"

#include "derived.h"
#include "profilephoto.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

constexpr qsizetype longestNote = 10'000;

Refusal noSuchFile()
{
    return unknown(u"That file isn't on the board."_s);
}

QString statusSentence(const FileItem &file)
{
    const auto title = displayTitle(file);
    if (file.status == "reviewed"_L1)
        return u"Marked "_s + title + u" reviewed"_s;
    if (file.status == "in_review"_L1)
        return u"Put "_s + title + u" back in review"_s;
    return u"Moved "_s + title + u" to New"_s;
}

QString stateSentence(const Finding &finding, const FileItem &file)
{
    const auto on = u" on "_s + displayTitle(file);
    if (finding.state == "issue"_L1)
        return u"Marked a finding a real issue"_s + on;
    if (finding.state == "fine"_L1)
        return u"Marked a finding fine"_s + on;
    return u"Reopened a finding"_s + on;
}

bool isFraction(const std::optional<double> &number)
{
    return !number || (*number >= 0 && *number <= 1);
}

bool hasPage(const FileItem &file, qint64 page)
{
    if (!file.pages)
        return page >= 0 && page < file.page_count.value_or(page + 1);
    return std::any_of(file.pages->begin(), file.pages->end(), [&](const Page &each) { return each.i == page; });
}

/// What is wrong with a note's text; empty when nothing is.
QString flawOf(const QString &text)
{
    if (text.trimmed().isEmpty())
        return u"A note needs some words."_s;
    if (text.size() > longestNote)
        return u"That note is too long."_s;
    if (text.contains(QChar::Null))
        return u"That note holds a character that no one can read."_s;
    return {};
}

/// What is wrong with where \a note is put; empty when nothing is.
QString flawOf(const NewNote &note, const FileItem &file, const std::optional<Finding> &finding)
{
    if (note.page && !hasPage(file, *note.page))
        return u"That file has no such page."_s;
    if (note.x.has_value() != note.y.has_value() || !isFraction(note.x) || !isFraction(note.y))
        return u"A pin needs a place on the page."_s;
    if (note.x && !note.page)
        return u"A pin needs a page."_s;
    if (note.finding_id && (!finding || finding->file_id != file.id))
        return u"That file has no such finding."_s;
    return {};
}

/// What happened to a note: the kind of the event, and its text.
using Happening = std::pair<QString, QString>;

/// Makes \a note what \a wanted says, and answers what happened to it by that.
QList<Happening> apply(const NoteChange &wanted, Note &note, const QString &by, double at)
{
    if (wanted.deleted)
        return {{u"delete"_s, u"deleted a note"_s}};
    QList<Happening> happened;
    if (wanted.text && wanted.text->trimmed() != note.text) {
        note.text = wanted.text->trimmed();
        note.edited = at;
        happened.append({u"edit"_s, u"changed a note"_s});
    }
    if (wanted.resolved == true && note.resolved.value_or(0) == 0) {
        note.resolved = 1;
        note.resolved_by = by;
        happened.append({u"resolve"_s, u"Resolved a note"_s});
    }
    if (wanted.resolved == false && note.resolved.value_or(0) != 0) {
        note.resolved.reset();
        note.resolved_by.reset();
        happened.append({u"reopen"_s, u"reopened a note"_s});
    }
    return happened;
}

} // namespace

Outcome<FileItem> Review::setStatus(const QString &by, const QString &fileId, const QString &status)
{
    if (status != "new"_L1 && status != "in_review"_L1 && status != "reviewed"_L1)
        return refused(u"A file is new, in review or reviewed."_s);
    Change change(m_ledger);
    auto file = m_ledger.files.find(fileId);
    if (!file)
        return noSuchFile();
    if (file->status == status)
        return *file;
    file->status = status;
    file->status_by = by;
    file->status_at = change.at();
    change.keep(*file);
    change.tell({.by = by, .kind = u"status"_s, .file_id = fileId, .text = statusSentence(*file)});
    change.commit();
    return *file;
}

Outcome<Finding> Review::setFindingState(const QString &by, const QString &findingId, const QString &state)
{
    if (state != "open"_L1 && state != "issue"_L1 && state != "fine"_L1)
        return refused(u"A finding is open, a real issue or fine."_s);
    Change change(m_ledger);
    auto finding = m_ledger.findings.find(findingId);
    auto file = finding ? m_ledger.files.find(finding->file_id) : std::nullopt;
    if (!file)
        return unknown(u"That finding isn't on the board."_s);
    if (finding->state == state)
        return *finding;
    finding->state = state;
    finding->state_by = by;
    finding->state_at = change.at();
    m_ledger.findings.put(*finding);
    change.keep(*file);
    change.tell({.by = by,
                 .kind = u"finding"_s,
                 .file_id = file->id,
                 .page = finding->page,
                 .text = stateSentence(*finding, *file)});
    change.commit();
    return *finding;
}

Outcome<Note> Review::addNote(const QString &by, const NewNote &note)
{
    if (const auto flaw = flawOf(note.text); !flaw.isEmpty())
        return refused(flaw);
    Change change(m_ledger);
    auto file = m_ledger.files.find(note.file_id);
    if (!file)
        return noSuchFile();
    const auto finding = m_ledger.findings.find(note.finding_id.value_or(QString()));
    if (const auto flaw = flawOf(note, *file, finding); !flaw.isEmpty())
        return refused(flaw);
    const Note kept{.id = newId("n"),
                    .file_id = note.file_id,
                    .page = note.page,
                    .x = note.x,
                    .y = note.y,
                    .finding_id = note.finding_id,
                    .text = note.text.trimmed(),
                    .by = by,
                    .at = change.at()};
    m_ledger.notes.put(kept);
    change.keep(*file);
    change.tell({.by = by, .kind = u"comment"_s, .file_id = file->id, .page = note.page, .text = kept.text});
    change.commit();
    return kept;
}

Outcome<Note> Review::changeNote(const QString &by, const QString &noteId, const NoteChange &wanted)
{
    if (const auto flaw = flawOf(wanted.text.value_or(u"unchanged"_s)); !flaw.isEmpty())
        return refused(flaw);
    Change change(m_ledger);
    auto note = m_ledger.notes.find(noteId);
    auto file = note ? m_ledger.files.find(note->file_id) : std::nullopt;
    if (!file)
        return unknown(u"That note isn't on the board."_s);
    const auto happened = apply(wanted, *note, by, change.at());
    if (happened.isEmpty())
        return *note;
    if (wanted.deleted)
        m_ledger.notes.remove(noteId);
    else
        m_ledger.notes.put(*note);
    change.keep(*file);
    for (const auto &[kind, text] : happened)
        change.tell({.by = by, .kind = kind, .file_id = file->id, .page = note->page, .text = text});
    change.commit();
    return *note;
}

Outcome<Person> Review::setPhoto(const QString &by, const QByteArray &jpeg)
{
    if (!isPhoto(jpeg))
        return refused(u"That photo didn't open. It has to be a JPEG."_s);
    Change change(m_ledger);
    auto person = m_ledger.people.find(by);
    if (!person)
        return unknown(u"Nobody of that address is on this board."_s);
    if (person->photo)
        m_ledger.removeBlob(*person->photo);
    person->photo = newId("photo/") + u".jpg"_s; // never a key that a client has seen: clients keep pictures by key
    m_ledger.putBlob(*person->photo, jpeg);
    m_ledger.people.put(*person);
    change.tell({.by = by, .kind = u"photo"_s, .text = u"Changed their photo"_s});
    change.commit();
    return *m_ledger.people.find(by);
}

} // namespace vexal::local
