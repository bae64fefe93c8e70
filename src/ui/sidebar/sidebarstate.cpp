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

void SidebarState::tell()
{
    tellLive();
    tellPeople();
}

void SidebarState::tellLive()
{
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
    const auto &board = m_store->board();
    m_people.setRows(board ? peopleRows(*board, m_store->clock()) : QList<PersonRow>());
}

} // namespace vexal
