#include "activitystate.h"

namespace vexal {

ActivityState::ActivityState(QObject *parent)
    : QObject(parent)
{
}

void ActivityState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &ActivityState::tell);
    connect(store, &Store::showActivityChanged, this, &ActivityState::tell);
    Q_EMIT storeChanged();
    tell();
}

void ActivityState::setTime(PassingTime *time)
{
    if (m_time == time)
        return;
    m_time = time;
    connect(time, &PassingTime::passed, this, &ActivityState::tell);
    Q_EMIT timeChanged();
    tell();
}

void ActivityState::follow(int row)
{
    if (row < 0 || row >= m_rows.rows().size())
        return;
    const ActivityRow chosen = m_rows.rows().at(row);
    if (!chosen.leads())
        return;
    m_store->selectFile(chosen.file);
    if (chosen.page >= 0)
        m_store->turnPage(chosen.file, chosen.page);
    m_store->setShowActivity(false);
}

void ActivityState::tell()
{
    if (!m_store || !m_time || !m_store->showActivity())
        return;
    const auto &board = m_store->board();
    m_rows.setRows(board ? activityRows(*board, m_store->clock()) : QList<ActivityRow>());
    announce();
    if (m_empty == m_rows.rows().isEmpty())
        return;
    m_empty = !m_empty;
    Q_EMIT emptyChanged();
}

void ActivityState::announce()
{
    if (!m_store->board())
        return;
    for (const Event &event : m_store->board()->events)
        m_time->told(momentOf(event.at));
}

} // namespace vexal
