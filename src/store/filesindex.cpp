#include "filesindex.h"

#include "hash.h"

namespace vexal {

FilesIndex indexOf(const QList<FileItem> &files)
{
    FilesIndex index;
    index.rows.reserve(files.size());
    index.fingerprints.reserve(files.size());
    for (const FileItem &file : files)
        index.fingerprints.append(qHash(file, 0));
    for (qsizetype row = files.size() - 1; row >= 0; --row)
        index.rows.insert(files[row].id, row);
    return index;
}

} // namespace vexal
