#include "sidebarstate.h"

#include "livestatus.h"

namespace vexal {

namespace {

Tone::Value toneOf(Freshness freshness)
{
    switch (freshness) {
    case Freshness::Offline:
        return Tone::LookAt;
    case Freshness::Connecting:
        return Tone::Neutral;
    case Freshness::Live:
        break;
    }
    return Tone::Reviewed;
}

} // namespace

SidebarState::SidebarState(QObject *parent)
    : QObject(parent)
{
}

void SidebarState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::problemChanged, this, &SidebarState::tellLive);
    connect(store, &Store::lastOKChanged, this, &SidebarState::tellLive);
    connect(store, &Store::boardChanged, this, &SidebarState::tellPeople);
    Q_EMIT storeChanged();
    tell();
}

void SidebarState::setTime(PassingTime *time)
{
    if (m_time == time)
        return;
    m_time = time;
    connect(time, &PassingTime::passed, this, &SidebarState::tell);
    Q_EMIT timeChanged();
    tell();
}

void SidebarState::tell()
{
    tellLive();
    tellPeople();
}

void SidebarState::tellLive()
{
    if (!m_store || !m_time)
        return;
    announceLive();
    const QString text = vexal::liveText(m_store->problem(), m_store->lastOK(), m_store->clock());
    const Tone::Value tone = toneOf(freshness(m_store->problem(), m_store->lastOK()));
    if (m_liveText == text && m_liveTone == tone)
        return;
    m_liveText = text;
    m_liveTone = tone;
    Q_EMIT liveChanged();
}

void SidebarState::tellPeople()
{
    if (!m_store || !m_time)
        return;
    announcePeople();
    const auto &board = m_store->board();
    m_people.setRows(board ? peopleRows(*board, m_store->clock()) : QList<PersonRow>());
}

void SidebarState::announceLive()
{
    if (freshness(m_store->problem(), m_store->lastOK()) != Freshness::Live)
        return;
    const QDateTime lastOK = *m_store->lastOK();
    if (m_store->clock().now() < upToDateUntil(lastOK))
        m_time->expect(upToDateUntil(lastOK));
    else
        m_time->told(lastOK);
}

void SidebarState::announcePeople()
{
    if (!m_store->board())
        return;
    for (const Person &person : m_store->board()->users) {
        if (!person.last_seen)
            continue;
        m_time->told(momentOf(*person.last_seen));
        if (isLive(person, m_store->clock()))
            m_time->expect(liveUntil(person));
    }
}

} // namespace vexal
