#pragma once

#include "credentialstore.h"
#include "preferences.h"
#include "secretservice.h"

#include <QTimer>

#include <chrono>

namespace QKeychain {
class Job;
}

namespace vexal {

/// The token in the desktop's keyring. What is wished for counts in memory at once; the keyring is brought to agree one
/// step at a time, never by more than one request at once, and is read again whenever it says that something changed.
///
/// A keyring that is locked, frozen or restarted after the token was read leaves the token as it is; only an open
/// keyring without the token takes it away. Reading and deleting never ask the person to open the keyring; storing may.
class KeyringCredentialStore : public CredentialStore
{
    Q_OBJECT

public:
    /// How long anybody waits for an answer.
    static constexpr std::chrono::seconds patience{3};

    /// Starts reading. `service` names the item; `preferences` remember over a restart that the keyring is behind.
    KeyringCredentialStore(const QDBusConnection &bus, const QString &service, Preferences &preferences,
                           QObject *parent = nullptr);

    QString token() const override { return m_token; }
    bool known() const override { return m_known; }
    void store(const QString &token, QObject *context, std::function<void()> done) override;
    void forget() override;

private:
    enum class Wish { Nothing, Write, Delete };
    enum class End { Done, WaitsForChange, WaitsForTime };
    using Item = SecretService::Item;
    using Job = QKeychain::Job;

    void wish(Wish wish, const QString &token);
    void settle();
    void act(const Item &item);
    void read();
    void write(const Item &item);
    void erase();
    void run(const std::function<Job *()> &make, const std::function<void(Job &)> &then, bool first = true);
    void fulfil();
    void end(End end);
    void answer();
    void setToken(const QString &token);

    QString m_service;
    Preferences &m_preferences;
    SecretService m_secrets;
    QString m_token;
    bool m_known = false;
    Wish m_wish = Wish::Nothing;
    int m_wishes = 0;       ///< Counts them, so that an answer to an earlier one is recognised.
    int m_workingOn = 0;    ///< The count when the step that is under way began.
    bool m_working = false; ///< A step is under way.
    bool m_again = false;   ///< Something happened meanwhile.
    bool m_mayAsk = false;  ///< Storing the present token may still ask the person to open the keyring.
    QList<std::function<void()>> m_waiting;
    QTimer m_limit; ///< Answers those who wait.
    QTimer m_retry; ///< For a keyring that is silent: it may come back without a word.
};

} // namespace vexal
