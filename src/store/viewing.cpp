#include "change.h"

/// What the person looks at and is about to write.
namespace vexal {

void Store::selectFile(const QString &id, bool additive)
{
    Change change(*this);
    QSet<QString> ids = additive ? m_selection : QSet<QString>{};
    if (!additive || !ids.remove(id))
        ids.insert(id);
    select(ids);
    clearFocus();
}

void Store::turnPage(const QString &fileId, qint64 index)
{
    Change change(*this);
    const qint64 before = shownPage(fileId);
    change.put(m_page, fileId, index, &Store::pageChanged);
    if (!isOnCanvas(fileId) || shownPage(fileId) == before)
        return;
    clearDraft();
    bringBack();
}

void Store::focusFinding(const QString &id)
{
    Change change(*this);
    if (!change.set(m_focus, id, &Store::focusChanged))
        change.tell(&Store::focusRenewed);
}

void Store::clearFocus()
{
    Change(*this).set(m_focus, std::nullopt, &Store::focusChanged);
}

void Store::setAgainst(const QString &role)
{
    Change(*this).set(m_against, role, &Store::againstChanged);
}

void Store::setMode(CompareMode mode)
{
    Change(*this).set(m_mode, mode, &Store::modeChanged);
}

void Store::setPinning(bool on)
{
    Change(*this).set(m_pinning, on, &Store::pinningChanged);
}

void Store::placePin(QPointF place)
{
    Change change(*this);
    change.set(m_draftPin, place, &Store::draftPinChanged);
    change.set(m_pinning, false, &Store::pinningChanged);
    change.tell(&Store::noteBegun);
}

void Store::answerFinding(const QString &id)
{
    Change change(*this);
    change.set(m_draftFinding, id, &Store::draftFindingChanged);
    change.tell(&Store::noteBegun);
}

void Store::clearDraft()
{
    Change change(*this);
    change.set(m_pinning, false, &Store::pinningChanged);
    change.set(m_draftPin, std::nullopt, &Store::draftPinChanged);
    change.set(m_draftFinding, std::nullopt, &Store::draftFindingChanged);
}

void Store::setShowActivity(bool on)
{
    Change(*this).set(m_showActivity, on, &Store::showActivityChanged);
}

void Store::toggleActivity()
{
    setShowActivity(!m_showActivity);
}

void Store::showToast(const QString &text, std::optional<QString> undoLabel, std::function<void()> undo)
{
    Change(*this).set(m_toast, Toast{QUuid::createUuid(), text, std::move(undoLabel), std::move(undo)},
                      &Store::toastChanged);
}

void Store::clearToast(QUuid id)
{
    if (m_toast && m_toast->id == id)
        Change(*this).set(m_toast, std::nullopt, &Store::toastChanged);
}

void Store::undoToast()
{
    if (!m_toast)
        return;
    const Toast pressed = *m_toast;
    if (pressed.undo)
        pressed.undo();
    clearToast(pressed.id);
}

/// Makes `ids` the selection. Another selection shows other pages, so what was marked on the old ones goes.
void Store::select(const QSet<QString> &ids)
{
    Change change(*this);
    if (!change.set(m_selection, ids, &Store::selectionChanged))
        return;
    m_visit = std::make_unique<QObject>();
    clearFocus();
    clearDraft();
    bringBack();
}

/// The file's pages are what the canvas shows.
bool Store::isOnCanvas(const QString &fileId) const
{
    return m_selection.size() == 1 && m_selection.contains(fileId);
}

/// Id of the file whose pages the canvas shows; empty when there is none.
QString Store::fileOnCanvas() const
{
    return m_selection.size() == 1 ? m_selection.values().constFirst() : QString();
}

} // namespace vexal
