#pragma once

#include "plan.h"

namespace vexal::sample {

/// A leaf that was printed: its page and its findings, which have no ids yet, and the blob keys that could not be
/// written.
struct PrintedLeaf
{
    Page page;
    QList<Finding> findings;
    QString cover; ///< Blob key of the file's thumbnail; only the first leaf has one.
    QStringList unwritten;
};

/// Paints the leaf of that index, writes its pictures into the folder and tells what the checks find on it.
PrintedLeaf printLeaf(const FilePlan &plan, qsizetype index, const QString &folder);

/// The name under which a folder holds the picture of a blob key: "/" becomes "_".
QString fileOfKey(const QString &key);

} // namespace vexal::sample
