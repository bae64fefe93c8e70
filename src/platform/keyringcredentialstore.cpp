#include "keyringcredentialstore.h"

#include <QLibrary>
#include <QPointer>

#include <qt6keychain/keychain.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const QString account = u"session"_s;

/// Has libsecret let go of the keyring daemon between two requests. After a restart of the daemon it would go on using
/// the session that it had with the old one, and complain on standard error of what the new one says.
void leaveDaemon()
{
    if (QFunctionPointer disconnect = QLibrary(u"secret-1"_s, 0).resolve("secret_service_disconnect"))
        disconnect();
}

} // namespace

KeyringCredentialStore::KeyringCredentialStore(const QDBusConnection &bus, const QString &service,
                                               Preferences &preferences, QObject *parent)
    : CredentialStore(parent)
    , m_service(service)
    , m_preferences(preferences)
    , m_secrets(bus, service, account)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(patience);
    m_retry.setSingleShot(true);
    m_retry.setInterval(std::chrono::seconds(30));
    connect(&m_limit, &QTimer::timeout, this, &KeyringCredentialStore::answer);
    connect(&m_retry, &QTimer::timeout, this, &KeyringCredentialStore::settle);
    connect(&m_secrets, &SecretService::changed, this, &KeyringCredentialStore::settle);
    if (m_preferences.value(preference::credentialPending))
        m_wish = Wish::Delete;
    m_limit.start();
    settle();
}

void KeyringCredentialStore::store(const QString &token, QObject *context, std::function<void()> done)
{
    m_waiting.append([context = QPointer(context), done = std::move(done)] {
        if (context)
            done();
    });
    m_mayAsk = true;
    m_limit.start();
    wish(Wish::Write, token);
}

void KeyringCredentialStore::forget()
{
    wish(Wish::Delete, {});
}

void KeyringCredentialStore::wish(Wish wish, const QString &token)
{
    m_wish = wish;
    ++m_wishes;
    m_preferences.setValue(preference::credentialPending, u"yes"_s);
    setToken(token);
    settle();
}

void KeyringCredentialStore::settle()
{
    m_again = m_working;
    if (m_working)
        return;
    m_working = true;
    m_workingOn = m_wishes;
    m_retry.stop();
    m_secrets.look([this](const Item &item) { act(item); });
}

void KeyringCredentialStore::act(const Item &item)
{
    if (m_workingOn != m_wishes)
        return end(End::Done);
    if (item.service == Item::Service::Silent)
        return end(End::WaitsForTime);
    if (m_wish == Wish::Write)
        return write(item);
    if (item.service == Item::Service::NoBus || (item.found && item.locked))
        return end(End::WaitsForChange);
    return m_wish == Wish::Delete ? erase() : read();
}

void KeyringCredentialStore::read()
{
    run([this] { return new QKeychain::ReadPasswordJob(m_service); },
        [this](Job &job) {
            const bool answered = job.error() == QKeychain::NoError || job.error() == QKeychain::EntryNotFound;
            if (answered && m_workingOn == m_wishes)
                setToken(static_cast<QKeychain::ReadPasswordJob &>(job).textData());
            end(answered ? End::Done : End::WaitsForChange);
        });
}

void KeyringCredentialStore::write(const Item &item)
{
    const bool nowhere = item.service != Item::Service::There;
    const auto giveUp = [this] {
        Q_EMIT keptForThisRunOnly();
        fulfil();
        end(End::Done);
    };
    if (item.service == Item::Service::NoBus)
        return giveUp();
    if (item.locked && !std::exchange(m_mayAsk, false))
        return end(End::WaitsForChange);
    run(
        [this, token = m_token] {
            auto *job = new QKeychain::WritePasswordJob(m_service);
            job->setTextData(token);
            return job;
        },
        [this, nowhere, giveUp](Job &job) {
            if (m_workingOn != m_wishes)
                return end(End::Done);
            if (job.error() == QKeychain::NoError)
                fulfil();
            else if (nowhere)
                return giveUp();
            end(job.error() == QKeychain::NoError ? End::Done : End::WaitsForChange);
        });
}

void KeyringCredentialStore::erase()
{
    run([this] { return new QKeychain::DeletePasswordJob(m_service); },
        [this](Job &job) {
            const bool gone = job.error() == QKeychain::NoError || job.error() == QKeychain::EntryNotFound;
            if (gone && m_workingOn == m_wishes)
                fulfil();
            end(gone ? End::Done : End::WaitsForChange);
        });
}

void KeyringCredentialStore::run(const std::function<Job *()> &make, const std::function<void(Job &)> &then, bool first)
{
    Job *job = make();
    job->setKey(account);
    // A job that is deleted before it has finished takes the program down with it: it lives until it has, however long.
    job->setAutoDelete(false);
    connect(job, &Job::finished, job, [job] {
        job->deleteLater();
        leaveDaemon();
    });
    connect(job, &Job::finished, this, [this, job, make, then, first] {
        if (job->error() != QKeychain::OtherError || !first)
            return then(*job);
        run(make, then, false);
    });
    job->start();
}

void KeyringCredentialStore::fulfil()
{
    m_wish = Wish::Nothing;
    m_preferences.remove(preference::credentialPending);
}

void KeyringCredentialStore::end(End end)
{
    m_working = false;
    if (end == End::WaitsForTime)
        m_retry.start();
    if (m_workingOn == m_wishes)
        answer();
    if (m_again)
        settle();
}

void KeyringCredentialStore::answer()
{
    m_limit.stop();
    if (!std::exchange(m_known, true))
        Q_EMIT becameKnown();
    for (const auto &done : std::exchange(m_waiting, {}))
        done();
}

void KeyringCredentialStore::setToken(const QString &token)
{
    if (std::exchange(m_token, token) != token)
        Q_EMIT tokenChanged();
}

} // namespace vexal
