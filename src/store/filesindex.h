#pragma once

#include "board.h"

#include <QHash>

namespace vexal {

/// What is looked up of a board's files again and again, and takes its time where there are thousands of them.
struct FilesIndex
{
    QHash<QString, qsizetype> rows; ///< Where each id stands; of two files with one id, where the first does.
    QList<size_t> fingerprints;     ///< Of each file, all of its fields in one number.
};

/// A board that is ready to be taken.
struct IndexedBoard
{
    BoardState board;
    FilesIndex index;
};

/// May be called in any thread.
FilesIndex indexOf(const QList<FileItem> &files);

} // namespace vexal
