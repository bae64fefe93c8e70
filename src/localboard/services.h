#pragma once

#include "documents.h"
#include "jobs.h"
#include "reports.h"
#include "review.h"
#include "sessions.h"

namespace vexal::local {

/// Everything that can be asked of one board. May be used from any thread: each operation takes the ledger's lock.
struct Services
{
    Services(const QString &path, Ledger::Now now)
        : ledger(path, std::move(now))
    {
    }

    Ledger ledger;
    Sessions sessions{ledger};
    Documents documents{ledger};
    Review review{ledger};
    Jobs jobs{ledger};
    Reports reports{ledger};
};

} // namespace vexal::local
