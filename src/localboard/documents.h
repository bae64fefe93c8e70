#pragma once

#include "ledger.h"
#include "outcome.h"

namespace vexal::local {

/// A document in one of its revisions.
struct Document
{
    QByteArray tag;      ///< Strong entity tag, in its quotes: equal tags, equal bytes.
    QByteArray json;     ///< Empty when the asker holds this revision.
    bool isHeld = false; ///< The asker's tags name this revision.
};

/// What the board shows. Throws DatabaseError.
class Documents
{
public:
    explicit Documents(Ledger &ledger)
        : m_ledger(ledger)
    {
    }

    /// The board as \a email sees it. \a held is what the asker says under If-None-Match.
    Document state(const QString &email, const QByteArray &held);

    /// The detail of the file \a id.
    Outcome<Document> detail(const QString &id, const QByteArray &held);

    /// The picture of the key \a key.
    Outcome<QByteArray> blob(const QString &key);

    /// Everyone on the board.
    QList<Person> people();

private:
    Ledger &m_ledger;
};

} // namespace vexal::local
