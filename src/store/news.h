#pragma once

#include "board.h"

#include <QDateTime>

namespace vexal {

/// What a new board brings to be told.
struct News
{
    qint64 seenEvent = 0;         ///< The highest event id accounted for from now on.
    std::optional<QString> toast; ///< What other people or the worker machine did; none when nobody did anything new.
    QString fileId = {};          ///< The file that it is about; empty for none.

    bool operator==(const News &) const = default;
};

/// The news of `board` for someone who has accounted for the events up to `seenEvent` and began at `started`. The first
/// board has none: what lies before it is history. What the signed-in person did is none, either.
News newsOf(const BoardState &board, qint64 seenEvent, const QDateTime &started);

} // namespace vexal
