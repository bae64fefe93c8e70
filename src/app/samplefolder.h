#pragma once

#include "board.h"

#include <QDateTime>

#include <optional>

namespace vexal {

class Store;
struct LaunchOptions;

/// What came of reading the file "sample.json" of a folder.
struct SampleRead
{
    std::optional<Sample> sample; ///< Absent when the file could not be read or did not decode.
    bool undecodable = false;     ///< The file could be read and is no sample.
};

/// Reads a sample folder's board.
SampleRead readSample(const QString &folder);

/// The latest moment that a sample speaks of: the now of a program that shows it. The epoch when it speaks of none.
QDateTime latestMoment(const Sample &sample);

/// Brings a store that holds a sample into the state that the flags ask for: which files are selected, the focused
/// finding, the activity list, the placed pin.
void stage(Store &store, const LaunchOptions &options);

} // namespace vexal
