#include "rootstate.h"

#include "deployment.h"

using namespace Qt::StringLiterals;

namespace vexal {

RootState::Place placeOf(const Store &store)
{
    if (store.selection().size() >= 2)
        return RootState::SeveralFiles;
    if (store.current())
        return RootState::OneFile;
    return store.board() ? RootState::NothingChosen : RootState::Loading;
}

RootState::RootState(QObject *parent)
    : QObject(parent)
{
}

void RootState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &RootState::update);
    connect(store, &Store::selectionChanged, this, &RootState::update);
    connect(store, &Store::toastChanged, this, &RootState::updateToast);
    Q_EMIT storeChanged();
    update();
    updateToast();
}

QString RootState::emptyTitle() const
{
    return m_anyFile ? u"Pick a file."_s : u"Nothing to review yet."_s;
}

QString RootState::emptyLine() const
{
    return m_anyFile ? u"Pick one on the left to compare it with our files."_s
                     : u"Press Sync. Claude on the Mac mini checks supplier mail for new proofs."_s;
}

void RootState::clearToast(const QString &id)
{
    m_store->clearToast(QUuid(id));
}

void RootState::undoToast()
{
    m_store->undoToast();
}

QString RootState::emailDomain() const
{
    return deployment::emailDomain.toString();
}

QString RootState::dedication() const
{
    return deployment::dedication.toString();
}

void RootState::signIn()
{
    m_store->showToast(u"Sign-in didn't finish. Try again."_s);
}

void RootState::update()
{
    const Place place = placeOf(*m_store);
    const bool anyFile = m_store->board() && !m_store->board()->files.isEmpty();
    if (m_place == place && m_anyFile == anyFile)
        return;
    m_place = place;
    m_anyFile = anyFile;
    Q_EMIT changed();
}

void RootState::updateToast()
{
    m_toast = m_store->toast().value_or(Toast());
    Q_EMIT toastChanged();
}

} // namespace vexal
