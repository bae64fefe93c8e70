#include "canvasstate.h"

#include <algorithm>

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
    connect(store, &Store::focusChanged, this, &CanvasState::turnToFocus);
    connect(store, &Store::focusChanged, this, &CanvasState::update);
    Q_EMIT storeChanged();
    update();
}

void CanvasState::update()
{
    const FileItem *file = m_store->current();
    const FileDetail *detail = file ? m_store->detail(file->id) : nullptr;
    const QString &against = m_store->against();
    const QString focus = m_store->focus().value_or(QString());
    static const FileDetail nothing;
    const FileDetail &shown = detail ? *detail : nothing;
    const Comparison comparison =
        detail ? comparisonOf(shown.file, m_store->shownPage(file->id), against) : Comparison();
    const Closeup closeup = closeupOf(shown, comparison.index, comparison.role, focus);
    m_marks.setRows(boxMarks(shown, comparison.index, comparison.role, focus));
    m_pins.setRows(pinMarks(shown.comments, comparison.index));
    m_ahead.setRows(pagesAhead(shown.file, comparison.index, against));

    const QString id = file ? file->id : QString();
    if (m_ready == bool(detail) && m_file == id && m_comparison == comparison && m_closeup == closeup)
        return;
    m_ready = detail;
    m_file = id;
    m_comparison = comparison;
    m_closeup = closeup;
    Q_EMIT changed();
}

// Whoever focuses a finding wants to see it: its page is turned to.
void CanvasState::turnToFocus()
{
    const FileItem *file = m_store->current();
    const FileDetail *detail = file ? m_store->detail(file->id) : nullptr;
    if (!detail || !m_store->focus())
        return;
    const auto finding = std::find_if(detail->findings.cbegin(), detail->findings.cend(),
                                      [this](const Finding &candidate) { return candidate.id == m_store->focus(); });
    if (finding != detail->findings.cend() && finding->page != m_store->shownPage(file->id))
        m_store->turnPage(file->id, finding->page);
}

QStringList CanvasState::modeLabels()
{
    return {modeLabel(CompareMode::Side), modeLabel(CompareMode::Overlay), modeLabel(CompareMode::Blink)};
}

void CanvasState::chooseMode(int index)
{
    m_store->setMode(CompareMode(std::clamp(index, int(CompareMode::Side), int(CompareMode::Blink))));
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
