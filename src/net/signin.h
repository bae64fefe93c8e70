#pragma once

#include "api.h"
#include "board.h"
#include "browser.h"
#include "credentialstore.h"
#include "preferences.h"
#include "result.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QUrl>

#include <functional>
#include <memory>

namespace vexal {

/// Signs a person in through the server's page in their browser: the page ends in a URL of our own scheme with a
/// one-time code, which the server exchanges for the session token.
class SignIn : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(const Result<Me> &)>;

    /// What a URL that was opened into the program came to.
    enum class Arrival {
        Ignored,  ///< It is none of our business, or nobody's any more.
        Callback, ///< It was the answer that the attempt had waited for.
        SignedIn, ///< It says that somebody is signed in, and there is a credential for it.
        NobodyIn, ///< It says so, but there is none: the sign-in did not finish.
    };

    /// `device` is what the server knows this computer by, "Mac" if it is empty.
    SignIn(API &api, Preferences &preferences, CredentialStore &credentials, Browser &browser, const QString &device,
           QObject *parent = nullptr);
    ~SignIn() override;

    /// Opens the sign-in page. `done` is called once, with the person, whose token is stored by then, or with a
    /// failure: `Cancelled` when the attempt was given up or another began; not at all when `context` goes before.
    void start(QObject *context, Done done);

    /// Gives up the attempt that is under way, if any.
    void cancel();

    /// An attempt is under way.
    bool waiting() const { return m_attempt != nullptr; }

    /// The page of the attempt, as long as the person is expected there; empty otherwise.
    QUrl page() const;

    /// Takes a URL that was opened into the program. What it carries is trusted only as far as it answers the attempt.
    Arrival take(const QUrl &url);

Q_SIGNALS:
    /// `waiting` or `page` did.
    void waitingChanged();

private:
    /// One walk through the page and back. What it has under way ends with it.
    struct Attempt
    {
        QString state;       ///< By which the callback is known to be the answer to this very attempt.
        QUrl page;           ///< Empty once the person has come back.
        bool stored = false; ///< The token was handed to the store.
        QPointer<QObject> context;
        Done done;
        QObject life;
    };

    QUrl pageFor(const QString &state) const;
    void receive(const QUrl &callback);
    void exchange(const QString &code);
    void keep(const Response &response);
    void end(const Result<Me> &result);
    void tell(std::unique_ptr<Attempt> attempt, const Result<Me> &result);

    API &m_api;
    Preferences &m_preferences;
    CredentialStore &m_credentials;
    Browser &m_browser;
    QString m_device;
    std::unique_ptr<Attempt> m_attempt;
    QSet<QString> m_over; ///< States of attempts that are over: their callbacks are late.
};

} // namespace vexal
