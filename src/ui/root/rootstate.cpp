#include "rootstate.h"

#include "deployment.h"
#include "links.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>

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
    connect(store, &Store::signingInChanged, this, &RootState::signInChanged);
    connect(store, &Store::updateChanged, this, &RootState::bannersChanged);
    connect(store, &Store::problemChanged, this, &RootState::bannersChanged);
    connect(store, &Store::boardChanged, this, &RootState::bannersChanged);
    Q_EMIT storeChanged();
    update();
    updateToast();
    Q_EMIT bannersChanged();
    Q_EMIT signInChanged();
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

void RootState::announce(QQuickItem *item)
{
    QAccessibleEvent shown(item, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
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
    m_store->signIn();
}

void RootState::cancelSignIn()
{
    m_store->cancelSignIn();
}

void RootState::copySignInLink()
{
    QGuiApplication::clipboard()->setText(m_store->signInPage().toString(QUrl::FullyEncoded));
    m_store->showToast(u"Link copied."_s);
}

QString RootState::updateTitle() const
{
    return m_store->update() ? u"Vexal "_s + shownText(m_store->update()->version) + u" is ready."_s : QString();
}

QString RootState::updateNotes() const
{
    return m_store->update() ? shownText(m_store->update()->notes) : QString();
}

void RootState::download() const
{
    if (m_store->update())
        openLink(m_store->update()->url);
}

void RootState::dismissUpdate()
{
    m_store->dismissUpdate();
}

QString RootState::problem() const
{
    return m_store->board() ? shownText(m_store->problem()) : QString();
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
