#pragma once

#include "ledger.h"
#include "outcome.h"

namespace vexal::local {

/// Who is signed in. Tokens and codes are 256 random bits each; only their hashes are kept. Throws DatabaseError.
class Sessions
{
public:
    explicit Sessions(Ledger &ledger)
        : m_ledger(ledger)
    {
    }

    /// A code that signs \a email in, once and within ten minutes.
    Outcome<QString> issueCode(const QString &email);

    /// A session on \a device (its name) for the code \a code.
    Outcome<SignInAnswer> exchange(const QString &code, const QString &device);

    /// A session for \a email without a code: for who runs the board, not for who calls it.
    Outcome<SignInAnswer> open(const QString &email, const QString &device);

    /// The e-mail address of who holds the token \a token, if it stands for a session. They were seen now: their
    /// `last_seen` follows at most once a minute, so that a board on which nothing happens keeps its entity tag.
    std::optional<QString> holder(const QString &token);

    /// Ends the session of the token \a token.
    void end(const QString &token);

    /// Ends every session of \a email.
    void endAll(const QString &email);

private:
    SignInAnswer begin(Change &change, const Person &person, const QString &device);

    Ledger &m_ledger;
};

} // namespace vexal::local
