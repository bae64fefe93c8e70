#pragma once

#include "board.h"

#include <QHash>

namespace vexal {

/// The numbers of a page's pins by note id: its pinned notes count from 1 in the order in which they stand, the
/// resolved ones too, so that no pin is called anew when another is resolved.
QHash<QString, int> pinNumbers(const QList<Note> &notes, qint64 page);

} // namespace vexal
