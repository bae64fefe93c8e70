#include "api.h"
#include "change.h"
#include "place.h"

#include <utility>

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
    QJsonObject body{{u"file_id"_s, file->id}, {u"page"_s, shownPage(file->id)}, {u"text"_s, trimmed}};
    if (m_draftPin) {
        body.insert(u"x"_s, m_draftPin->x());
        body.insert(u"y"_s, m_draftPin->y());
    }
    if (m_draftFinding)
        body.insert(u"finding_id"_s, *m_draftFinding);
    Change change(*this);
    m_posted = draft();
    clearDraft();
    forgetTag(file->id);
    const auto taken = [this](const Response &, const Hold &busy) {
        m_posted.reset();
        showToast(u"Note added."_s);
        refresh(busy);
    };
    act(u"note"_s, {.path = u"api/comments"_s, .method = "POST", .json = body}, notDone, taken, [this](const Hold &) {
        m_setAside = std::exchange(m_posted, std::nullopt);
        bringBack();
    });
}

/// What the note that is being written hangs on; nothing for a note on the page.
std::optional<Store::Draft> Store::draft() const
{
    const FileItem *file = current();
    if (!file || (!m_draftPin && !m_draftFinding))
        return std::nullopt;
    return Draft{m_board->me.email, file->id, shownPage(file->id), m_draftPin, m_draftFinding};
}

/// Restores what a note was to hang on that was refused, or whose writer had to sign in again, once its page shows and
/// unless something newer is being written there.
void Store::bringBack()
{
    if (!m_setAside || !m_board || !isOnCanvas(m_setAside->fileId) || shownPage(m_setAside->fileId) != m_setAside->page)
        return;
    const Draft draft = *std::exchange(m_setAside, std::nullopt);
    if (m_pinning || m_draftPin || m_draftFinding || draft.person != m_board->me.email)
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
    if (const auto place = placeOf(noteId, &FileDetail::comments, m_details, fileOnCanvas()))
        forgetTag(place->fileId);
    perform(u"n-"_s + noteId, editText(resolved, deleted),
            {.path = u"api/comments/"_s + noteId, .method = "POST", .json = body});
}

} // namespace vexal
