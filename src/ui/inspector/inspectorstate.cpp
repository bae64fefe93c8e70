#include "inspectorstate.h"

#include "compare.h"
#include "derived.h"
#include "pinnumbers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

template <typename Record>
const Record *find(const QList<Record> &records, const QString &id)
{
    const auto found =
        std::find_if(records.cbegin(), records.cend(), [&id](const Record &record) { return record.id == id; });
    return found == records.cend() ? nullptr : &*found;
}

Page pageOf(const FileDetail &detail, int index)
{
    return detail.file.pages.value_or(QList<Page>()).value(index);
}

int rowOf(const RowList<FindingRow> &list, const QString &finding)
{
    const auto &rows = list.rows();
    const auto found =
        std::find_if(rows.cbegin(), rows.cend(), [&finding](const FindingRow &row) { return row.key == finding; });
    return found == rows.cend() ? -1 : int(found - rows.cbegin());
}

} // namespace

InspectorState::InspectorState(QObject *parent)
    : QObject(parent)
{
}

void InspectorState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    for (const auto signal : {&Store::boardChanged, &Store::detailsChanged, &Store::selectionChanged,
                              &Store::pageChanged, &Store::againstChanged, &Store::focusChanged, &Store::busyChanged})
        connect(store, signal, this, &InspectorState::tell);
    connect(store, &Store::focusChanged, this, &InspectorState::focusMoved);
    connect(store, &Store::pinningChanged, this, &InspectorState::tellComposer);
    connect(store, &Store::draftPinChanged, this, &InspectorState::tellComposer);
    connect(store, &Store::draftFindingChanged, this, &InspectorState::tellComposer);
    connect(store, &Store::noteBegun, this, &InspectorState::noteBegun);
    Q_EMIT givenChanged();
    tell();
}

void InspectorState::setTime(PassingTime *time)
{
    if (m_time == time)
        return;
    m_time = time;
    connect(time, &PassingTime::passed, this, &InspectorState::tell);
    Q_EMIT givenChanged();
    tell();
}

void InspectorState::setDrafts(Drafts *drafts)
{
    if (m_drafts == drafts)
        return;
    m_drafts = drafts;
    connect(drafts, &Drafts::editingChanged, this, &InspectorState::tell);
    connect(drafts, &Drafts::notesChanged, this, &InspectorState::tellComposer);
    Q_EMIT givenChanged();
    tell();
}

QAbstractListModel *InspectorState::notesOn(const QString &finding)
{
    auto &list = m_notesOn[finding];
    if (!list) {
        list = new RowList<NoteRow>(this);
        if (const FileDetail *known = detail())
            tellNotes(*known);
    }
    return list;
}

void InspectorState::setNoteText(const QString &text)
{
    if (text == m_noteText)
        return;
    m_drafts->setNote(m_place.file, m_place.page, text);
    Q_EMIT written();
}

void InspectorState::setEditText(const QString &note, const QString &text)
{
    if (text == editText(note))
        return;
    m_drafts->setEdit(note, text);
    Q_EMIT written();
}

int InspectorState::cardOf(const QString &finding) const
{
    return rowOf(m_cards, finding);
}

int InspectorState::settledCardOf(const QString &finding) const
{
    return rowOf(m_settled, finding);
}

void InspectorState::judge(const QString &finding, const QString &state)
{
    const FileDetail *known = detail();
    const Finding *judged = known ? find(known->findings, finding) : nullptr;
    if (judged && !m_store->busy().contains(finding))
        m_store->setFindingState(finding, stateAfter(judged->state, state));
}

void InspectorState::beginEdit(const QString &note)
{
    const FileDetail *known = detail();
    if (const Note *edited = known ? find(known->comments, note) : nullptr)
        m_drafts->beginEdit(known->file.id, note, edited->text);
}

const FileDetail *InspectorState::detail() const
{
    const FileItem *file = m_store->current();
    return file ? m_store->detail(file->id) : nullptr;
}

Telling InspectorState::telling() const
{
    const auto &board = m_store->board();
    return {board ? &*board : nullptr, m_store->clock(), m_store->busy(), m_store->focus().value_or(QString())};
}

void InspectorState::tell()
{
    if (!m_store || !m_time || !m_drafts)
        return;
    const FileDetail *known = detail();
    const Place before = m_place;
    tellPlace(known);
    tellFindings(known ? *known : FileDetail());
    tellNotes(known ? *known : FileDetail());
    tellComposer();
    if (known)
        announce(*known);
    if (before.file != m_place.file || before.page != m_place.page)
        Q_EMIT turned();
}

void InspectorState::tellPlace(const FileDetail *detail)
{
    const FileItem *file = m_store->current();
    Place place;
    if (file)
        place = {file->id, int(m_store->shownPage(file->id)), bool(detail),
                 detail && detail->file.pages && !detail->file.pages->isEmpty()};
    if (m_place == place)
        return;
    m_place = place;
    Q_EMIT placeChanged();
}

void InspectorState::tellFindings(const FileDetail &detail)
{
    const Page page = pageOf(detail, m_place.page);
    const QString role = roleChosen(rolesOffered(page), m_store->against());
    const FoundOnPage found = foundOnPage(detail, m_place.page, role, telling());
    m_cards.setRows(found.cards);
    m_settled.setRows(found.settled);
    m_others.setRows(otherPages(detail, m_place.page, m_store->against()));
    if (m_review == found.review)
        return;
    m_review = found.review;
    Q_EMIT reviewChanged();
}

void InspectorState::tellNotes(const FileDetail &detail)
{
    const auto numbers = pinNumbers(detail.comments, m_place.page);
    const auto rows = [&, editing = m_drafts->editing(), told = telling()](const QList<Note> &notes) {
        return noteRows(notes, numbers, editing, told);
    };
    m_notes.setRows(rows(notesOfPage(detail.comments, m_place.page)));
    m_notesOn.removeIf([&detail](const auto &entry) {
        const bool gone = !find(detail.findings, entry.key());
        if (gone)
            entry.value()->deleteLater();
        return gone;
    });
    for (auto list = m_notesOn.cbegin(); list != m_notesOn.cend(); ++list)
        (*list)->setRows(rows(notesOfFinding(detail.comments, list.key())));
}

void InspectorState::tellComposer()
{
    if (!m_drafts || !m_time)
        return;
    tellNoteText();
    const FileDetail *known = detail();
    const Finding *finding =
        known && m_store->draftFinding() ? find(known->findings, *m_store->draftFinding()) : nullptr;
    const bool pinned = m_store->draftPin().has_value();
    const ComposerView view{composerContext(pinned, finding ? std::optional(shownText(finding->title)) : std::nullopt,
                                            known ? pageLabel(pageOf(*known, m_place.page)) : QString()),
                            pinned || m_store->draftFinding(), composerPlaceholder(m_store->pinning()),
                            m_store->busy().contains(u"note"_s), m_drafts->isPosting(m_place.file, m_place.page)};
    if (m_composer == view)
        return;
    m_composer = view;
    Q_EMIT composerChanged();
}

void InspectorState::tellNoteText()
{
    const QString text = m_drafts->note(m_place.file, m_place.page);
    if (m_noteText == text)
        return;
    m_noteText = text;
    Q_EMIT noteTextChanged();
}

void InspectorState::announce(const FileDetail &detail)
{
    for (const Finding &finding : detail.findings) {
        if (finding.state_by && finding.state_at)
            m_time->told(momentOf(*finding.state_at));
    }
    for (const Note &note : detail.comments)
        m_time->told(momentOf(note.at));
}

/// A draft that comes back because its note was not taken, which is while that is still under way, is nothing new.
} // namespace vexal
