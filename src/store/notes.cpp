#include "api.h"
#include "change.h"
#include "place.h"

using namespace Qt::StringLiterals;

/// What people write.
namespace vexal {

namespace {

QString editText(std::optional<bool> resolved, bool deleted)
{
    if (deleted)
        return u"Note deleted."_s;
    if (resolved)
        return *resolved ? u"Resolved."_s : u"Reopened."_s;
    return u"Saved."_s;
}

} // namespace

void Store::addNote(const QString &text)
{
    const QString trimmed = text.trimmed();
    const FileItem *file = current();
    if (trimmed.isEmpty() || !mayAct() || !file)
        return;
    const Draft draft{file->id, shownPage(file->id), m_draftPin, m_draftFinding};
    QJsonObject body{{u"file_id"_s, draft.fileId}, {u"page"_s, draft.page}, {u"text"_s, trimmed}};
    if (draft.pin) {
        body.insert(u"x"_s, draft.pin->x());
        body.insert(u"y"_s, draft.pin->y());
    }
    if (draft.finding)
        body.insert(u"finding_id"_s, *draft.finding);
    Change change(*this);
    clearDraft();
    forgetTag(draft.fileId);
    perform(u"note"_s, u"Note added."_s, {.path = u"api/comments"_s, .method = "POST", .json = body},
            [this, draft](const Hold &) { bringBack(draft); });
}

/// Restores the draft of a note that was not taken, where the page still shows and nothing newer is being written
/// there.
void Store::bringBack(const Draft &draft)
{
    const bool newer = m_pinning || m_draftPin || m_draftFinding;
    if (newer || !isOnCanvas(draft.fileId) || shownPage(draft.fileId) != draft.page)
        return;
    Change change(*this);
    change.set(m_draftPin, draft.pin, &Store::draftPinChanged);
    change.set(m_draftFinding, draft.finding, &Store::draftFindingChanged);
}

void Store::editNote(const QString &noteId, const std::optional<QString> &text, std::optional<bool> resolved,
                     bool deleted)
{
    if (!mayAct())
        return;
    QJsonObject body;
    if (text)
        body.insert(u"text"_s, *text);
    if (resolved)
        body.insert(u"resolved"_s, *resolved);
    if (deleted)
        body.insert(u"deleted"_s, true);
    if (const auto place = placeOf(noteId, &FileDetail::comments, m_details))
        forgetTag(place->fileId);
    perform(u"n-"_s + noteId, editText(resolved, deleted),
            {.path = u"api/comments/"_s + noteId, .method = "POST", .json = body});
}

} // namespace vexal
