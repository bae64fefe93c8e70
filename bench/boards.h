#pragma once

#include "board.h"

namespace vexal {

/// How large a board is.
struct BoardSize
{
    int files = 0;
    int pagesAFile = 0; ///< None: the board lists the files without their pages.
};

/// A board as a busy server would send it, every field in use. The same size gives the same board.
BoardState busyBoard(BoardSize size);

/// The detail of the first file of such a board, with \a findings findings and a third as many notes.
FileDetail busyDetail(int findings);

} // namespace vexal
