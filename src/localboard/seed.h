#pragma once

#include "ledger.h"
#include "outcome.h"

namespace vexal::local {

/// A board to start from, as it lies in a folder: sample.json, and the pictures, each under its blob key with "_" for
/// "/". In the sub-folder "inbox", where there is one, lie the proofs that are still to come, one a sync: inbox.json,
/// {"details": [FileDetail, ...]}, and their pictures.
struct Seed
{
    /// A picture and the key that it is asked for by.
    struct Picture
    {
        QString key;
        QString path;
    };

    Sample sample;
    QList<FileDetail> inbox;
    QList<Picture> pictures;
};

/// Reads the seed in \a folder; refused with a sentence that names the file at fault.
Outcome<Seed> readSeed(const QString &folder);

/// Moves every time of \a seed by the same span, so that the newest of its board is \a newest (milliseconds since
/// 1970): then what is said to have happened minutes ago happened minutes ago.
void moveTimes(Seed &seed, double newest);

/// Puts \a seed into \a ledger, which must be empty: all of it or, when it throws DatabaseError, nothing. A picture
/// that cannot be read is left out.
void plant(const Seed &seed, Ledger &ledger);

} // namespace vexal::local
