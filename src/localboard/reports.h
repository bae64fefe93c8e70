#pragma once

#include "ledger.h"
#include "outcome.h"

namespace vexal::local {

/// The PDFs of the board's reports. Throws DatabaseError.
class Reports
{
public:
    explicit Reports(Ledger &ledger)
        : m_ledger(ledger)
    {
    }

    /// The PDF of the report \a id. One that came without its PDF is drawn now, and stays as it is drawn.
    Outcome<QByteArray> pdf(const QString &id);

private:
    QByteArray draw(Report report);

    Ledger &m_ledger;
};

} // namespace vexal::local
