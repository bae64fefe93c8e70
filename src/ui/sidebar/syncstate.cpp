#include "syncstate.h"

using namespace Qt::StringLiterals;

namespace vexal {

SyncState::SyncState(QObject *parent)
    : QObject(parent)
{
}

void SyncState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &SyncState::tell);
    connect(store, &Store::busyChanged, this, &SyncState::tell);
    Q_EMIT storeChanged();
    tell();
}

void SyncState::setTime(PassingTime *time)
{
    if (m_time == time)
        return;
    m_time = time;
    connect(time, &PassingTime::passed, this, &SyncState::tell);
    Q_EMIT timeChanged();
    tell();
}

void SyncState::tell()
{
    if (!m_store || !m_time)
        return;
    announce();
    const Shown now = shown();
    if (m_shown == now)
        return;
    m_shown = now;
    Q_EMIT changed();
}

SyncState::Shown SyncState::shown() const
{
    Shown now{.job = {}, .last = {}, .over = false, .starting = m_store->busy().contains(u"sync"_s)};
    const auto &board = m_store->board();
    if (!board || !board->sync)
        return now;
    now.over = jobStage(board->sync->status) == JobStage::Over;
    if (now.over)
        now.last = syncLast(*board->sync, &*board, m_store->clock());
    else
        now.job = jobRow(*board->sync, &*board, m_store->busy(), m_store->clock());
    return now;
}

void SyncState::announce()
{
    if (!m_store->board() || !m_store->board()->sync)
        return;
    const Job &sync = *m_store->board()->sync;
    const bool over = jobStage(sync.status) == JobStage::Over;
    if (const auto moment = over ? sync.finished : sync.started)
        m_time->told(momentOf(*moment));
}

} // namespace vexal
