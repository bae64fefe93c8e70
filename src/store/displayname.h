#pragma once

#include "board.h"

namespace vexal {

/// The label under which the screens show the person of an e-mail address: "You", a first name of `board`'s users, else
/// what the address itself tells. Without an address it is the worker machine's agent. `board` may be null.
QString displayName(const std::optional<QString> &email, const BoardState *board);

/// `text` with the first letter of each word a capital and every other letter small. Only blanks part words:
/// "sam.lee" gives "Sam.lee".
QString capitalised(const QString &text);

} // namespace vexal
