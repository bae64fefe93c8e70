#include "canvasstate.h"

namespace vexal {

CanvasState::CanvasState(QObject *parent)
    : QObject(parent)
{
}

void CanvasState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &CanvasState::update);
    connect(store, &Store::detailsChanged, this, &CanvasState::update);
    connect(store, &Store::selectionChanged, this, &CanvasState::update);
    connect(store, &Store::pageChanged, this, &CanvasState::update);
    connect(store, &Store::againstChanged, this, &CanvasState::update);
    connect(store, &Store::focusChanged, this, &CanvasState::update);
    Q_EMIT storeChanged();
    update();
}

void CanvasState::update()
{
    const FileItem *file = m_store->current();
    const FileDetail *detail = file ? m_store->detail(file->id) : nullptr;
    const Comparison comparison =
        detail ? comparisonOf(detail->file, m_store->shownPage(file->id), m_store->against()) : Comparison();
    m_marks.setRows(detail ? boxMarks(*detail, comparison.index, comparison.role, m_store->focus().value_or(QString()))
                           : QList<BoxMark>());
    if (m_ready == bool(detail) && m_comparison == comparison)
        return;
    m_ready = detail;
    m_comparison = comparison;
    Q_EMIT changed();
}

void CanvasState::turn(int step)
{
    const int target = m_comparison.index + step;
    if (const FileItem *file = m_store->current(); file && target >= 0 && target < m_comparison.count)
        m_store->turnPage(file->id, target);
}

void CanvasState::toggleFocus(const QString &finding)
{
    if (m_store->focus() == finding)
        m_store->clearFocus();
    else
        m_store->focusFinding(finding);
}

} // namespace vexal
