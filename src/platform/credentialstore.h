#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace vexal {

/// Where the session token is kept from one run to the next. Reading never waits: the token is held in memory and
/// follows what happens to the store. Every question is answered within three seconds, whatever state the store is in.
class CredentialStore : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The token as it is known now; empty when there is none, or when none could be read.
    virtual QString token() const = 0;

    /// The store has answered once, or has had its three seconds. Until then an empty token means little.
    virtual bool known() const = 0;

    /// Replaces the token. It counts at once; `done` follows when it is kept safely or after three seconds, and not at
    /// all when `context` has gone by then.
    virtual void store(const QString &token, QObject *context, std::function<void()> done) = 0;

    /// Forgets the token. It is gone at once; what a store cannot delete yet is deleted as soon as it can, and not used
    /// in between, in this run or another.
    virtual void forget() = 0;

Q_SIGNALS:
    void becameKnown(); ///< Once.
    void tokenChanged();

    /// There is no place to keep the token that was given: it lasts for this run.
    void keptForThisRunOnly();
};

} // namespace vexal
