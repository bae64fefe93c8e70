#pragma once

#include <QString>

namespace vexal {

/// Why something that goes through the server did not come about.
struct Failure
{
    enum class Kind {
        Server,    ///< The server answered but refused.
        Offline,   ///< The server could not be reached.
        SignedOut, ///< The server does not know the credential.
        Cancelled, ///< The person changed their mind: nothing is to be said.
        Other,     ///< Anything else, an answer that does not decode for one: it has no words of its own.
    };

    Kind kind = Kind::Other;
    QString sentence; ///< What people are shown, as it stands; empty for the last two kinds.

    static Failure server(const QString &sentence) { return {Kind::Server, sentence}; }
    static Failure offline(const QString &sentence) { return {Kind::Offline, sentence}; }
    static Failure signedOut() { return {Kind::SignedOut, QStringLiteral("You're signed out. Sign in again.")}; }
    static Failure cancelled() { return {Kind::Cancelled, {}}; }
    static Failure other() { return {}; }

    /// The sentence or, for a failure without one, the words of the action that failed.
    QString sentenceOr(const QString &own) const { return sentence.isEmpty() ? own : sentence; }

    bool operator==(const Failure &) const = default;
};

} // namespace vexal
