#include "drafts.h"

#include <QQmlEngine>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const QString posting = u"note"_s;
const QString ofNote = u"n-"_s;

bool holds(const FileDetail &detail, const QString &noteId)
{
    return std::any_of(detail.comments.cbegin(), detail.comments.cend(),
                       [&noteId](const Note &note) { return note.id == noteId; });
}

} // namespace

Drafts::Drafts(Store &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
{
    connect(&store, &Store::answered, this, &Drafts::answered);
    connect(&store, &Store::busyChanged, this, &Drafts::letGo);
    connect(&store, &Store::detailsChanged, this, &Drafts::dropEditsOfGoneNotes);
    connect(&store, &Store::boardChanged, this, &Drafts::keepToPerson);
    connect(&store, &Store::signedOut, this, &Drafts::clear);
    keepToPerson();
}

Drafts *Drafts::create(QQmlEngine *engine, QJSEngine *)
{
    auto *store = engine->property("store").value<Store *>();
    Q_ASSERT_X(store, "Drafts", "an engine shows screens before it was given a store");
    return new Drafts(*store);
}

void Drafts::setNote(const QString &fileId, qint64 page, const QString &text)
{
    if (note(fileId, page) == text)
        return;
    if (text.isEmpty())
        m_notes.remove({fileId, page});
    else
        m_notes.insert({fileId, page}, text);
    Q_EMIT notesChanged();
}

void Drafts::post()
{
    const FileItem *file = m_store.current();
    if (!file || m_store.busy().contains(posting))
        return;
    const Page page(file->id, m_store.shownPage(file->id));
    m_store.addNote(m_notes.value(page));
    if (!m_store.busy().contains(posting))
        return;
    m_posting = page;
    Q_EMIT notesChanged();
}

QSet<QString> Drafts::editing() const
{
    return {m_edits.keyBegin(), m_edits.keyEnd()};
}

void Drafts::beginEdit(const QString &fileId, const QString &noteId, const QString &text)
{
    if (m_edits.contains(noteId))
        return;
    m_edits.insert(noteId, {fileId, text});
    Q_EMIT editingChanged();
}

void Drafts::setEdit(const QString &noteId, const QString &text)
{
    if (const auto edit = m_edits.find(noteId); edit != m_edits.end())
        edit->text = text;
}

void Drafts::dropEdit(const QString &noteId)
{
    if (m_edits.remove(noteId))
        Q_EMIT editingChanged();
}

void Drafts::saveEdit(const QString &noteId)
{
    const QString key = ofNote + noteId;
    const auto edit = m_edits.find(noteId);
    if (edit == m_edits.end() || edit->text.trimmed().isEmpty() || m_store.busy().contains(key))
        return;
    edit->saving = true;
    m_store.saveNote(noteId, QString(edit->text));
    letGo();
}

void Drafts::answered(const QString &key, bool taken)
{
    if (key == posting && m_posting) {
        const Page page = *std::exchange(m_posting, std::nullopt);
        if (taken)
            m_notes.remove(page);
        Q_EMIT notesChanged();
        return;
    }
    const QString noteId = key.startsWith(ofNote) ? key.sliced(ofNote.size()) : QString();
    if (taken && m_edits.value(noteId).saving)
        dropEdit(noteId);
}

/// What was to be sent and is under way no longer, however that came, can be sent again.
void Drafts::letGo()
{
    for (auto edit = m_edits.begin(); edit != m_edits.end(); ++edit)
        edit->saving = edit->saving && m_store.busy().contains(ofNote + edit.key());
    if (!m_posting || m_store.busy().contains(posting))
        return;
    m_posting.reset();
    Q_EMIT notesChanged();
}

void Drafts::dropEditsOfGoneNotes()
{
    const QStringList edited(m_edits.keyBegin(), m_edits.keyEnd());
    for (const QString &noteId : edited) {
        const FileDetail *detail = m_store.detail(m_edits.value(noteId).fileId);
        if (detail && !holds(*detail, noteId))
            dropEdit(noteId);
    }
}

void Drafts::keepToPerson()
{
    if (!m_store.board() || m_store.board()->me.email == m_person)
        return;
    m_person = m_store.board()->me.email;
    clear();
}

void Drafts::clear()
{
    m_notes.clear();
    m_posting.reset();
    m_edits.clear();
    Q_EMIT notesChanged();
    Q_EMIT editingChanged();
}

} // namespace vexal
