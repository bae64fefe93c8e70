#include "api.h"
#include "change.h"
#include "launcherbadge.h"
#include "notifications.h"
#include "signin.h"
#include "surroundings.h"

using namespace Qt::StringLiterals;

/// How people come and go.
namespace vexal {

void Store::resume()
{
    if (!m_world || m_sample || m_signedIn)
        return;
    const CredentialStore &credentials = m_world->credentials;
    // A store that was locked or silent tells its token later; one that a sign-in brings is that sign-in's to tell.
    connect(&credentials, &CredentialStore::becameKnown, this, &Store::resume, Qt::UniqueConnection);
    connect(&credentials, &CredentialStore::tokenChanged, this, &Store::resume, Qt::UniqueConnection);
    if (credentials.known() && !credentials.token().isEmpty() && !signingIn())
        beSignedIn();
}

bool Store::signingIn() const
{
    return m_world && m_world->signIn.waiting();
}

QUrl Store::signInPage() const
{
    return m_world ? m_world->signIn.page() : QUrl();
}

void Store::signIn()
{
    if (m_sample)
        return void(mayAct());
    if (!m_world || m_signedIn)
        return;
    m_world->signIn.start(this, [this](const Result<Me> &me) {
        if (me)
            beSignedIn();
        else if (me.failure().kind != Failure::Kind::Cancelled)
            showToast(me.failure().sentenceOr(u"Sign-in didn't finish. Try again."_s));
    });
}

void Store::cancelSignIn()
{
    if (m_world)
        m_world->signIn.cancel();
}

void Store::openUrl(const QUrl &url)
{
    if (!m_world || m_sample)
        return;
    if (!m_world->credentials.known() && !signingIn()) {
        // Whether somebody is signed in is not known yet.
        connect(
            &m_world->credentials, &CredentialStore::becameKnown, this, [this, url] { openUrl(url); },
            Qt::SingleShotConnection);
        return;
    }
    const SignIn::Arrival arrival = m_world->signIn.take(url);
    if (arrival == SignIn::Arrival::SignedIn)
        beSignedIn();
    else if (arrival == SignIn::Arrival::NobodyIn)
        showToast(u"Sign-in didn't finish."_s);
}

void Store::beSignedIn()
{
    if (m_signedIn)
        return;
    Change(*this).set(m_signedIn, true, &Store::signedInChanged);
    start();
}

void Store::signOut(bool expired)
{
    if (!mayAct())
        return;
    if (!expired)
        m_world->api.send({.path = u"api/logout"_s, .method = "POST"}, this, [](const Result<Response> &) {});
    m_world->credentials.forget();
    {
        Change change(*this);
        // Who has only to sign in again goes on with what they write.
        m_setAside = expired ? (m_posted ? m_posted : draft()) : std::nullopt;
        clearSession();
        if (expired)
            showToast(Failure::signedOut().sentence);
    }
    if (!expired)
        Q_EMIT signedOut();
}

/// Ends the session: what it brought goes, and what it asked for is no longer listened to.
void Store::clearSession()
{
    ++m_session;
    m_loop.reset();
    Change change(*this);
    change.set(m_signedIn, false, &Store::signedInChanged);
    change.set(m_board, std::nullopt, &Store::boardChanged);
    change.set(m_details, QMap<QString, FileDetail>(), &Store::detailsChanged);
    change.set(m_detailProblems, QMap<QString, QString>(), &Store::detailProblemsChanged);
    select({});
    clearFocus();
    clearDraft();
    change.set(m_page, QMap<QString, qint64>(), &Store::pageChanged);
    change.set(m_problem, std::nullopt, &Store::problemChanged);
    change.set(m_lastOK, std::nullopt, &Store::lastOKChanged);
    change.set(m_toast, std::nullopt, &Store::toastChanged);
    change.set(m_busy, QSet<QString>(), &Store::busyChanged);
    change.set(m_update, std::nullopt, &Store::updateChanged);
    change.set(m_refreshing, false, &Store::refreshingChanged);
    m_filesIndex = {};
    m_etag.reset();
    m_fileTags.clear();
    m_detailSet.clear();
    m_writing.clear();
    m_fetching.clear();
    m_held.clear();
    m_posted.reset();
    m_world->badge.show(0);
    m_world->notifications.withdraw();
}

} // namespace vexal
