#include "fileliststate.h"

#include <algorithm>

namespace vexal {

FileListState::FileListState(QObject *parent)
    : QObject(parent)
{
}

void FileListState::setStore(Store *store)
{
    if (m_store == store)
        return;
    m_store = store;
    connect(store, &Store::boardChanged, this, &FileListState::update);
    connect(store, &Store::selectionChanged, this, &FileListState::update);
    Q_EMIT storeChanged();
    update();
}

int FileListState::chosenRow() const
{
    const auto &rows = m_rows.rows();
    const auto row = std::find_if(rows.cbegin(), rows.cend(), [](const FileRow &at) { return at.selected; });
    return row == rows.cend() ? -1 : int(row - rows.cbegin());
}

// A board has thousands of files: the row of one that is as it was is not made again.
void FileListState::makeRows(const QList<FileItem> &files)
{
    if (files.isSharedWith(m_files))
        return;
    if (!renewRows(files))
        arrangeRows(files);
    m_files = files;
}

// False when a file has come, gone or moved: then not all rows are those of the files.
bool FileListState::renewRows(const QList<FileItem> &files)
{
    if (files.size() != m_files.size())
        return false;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (files[i] == m_files[i])
            continue;
        if (files[i].id != m_files[i].id)
            return false;
        m_made[i] = fileRow(files[i]);
    }
    return true;
}

void FileListState::arrangeRows(const QList<FileItem> &files)
{
    QHash<QString, qsizetype> places;
    places.reserve(m_files.size());
    for (qsizetype i = 0; i < m_files.size(); ++i)
        places.insert(m_files[i].id, i);
    QList<FileRow> rows;
    rows.reserve(files.size());
    for (const FileItem &file : files) {
        const qsizetype before = places.value(file.id, -1);
        rows.append(before >= 0 && m_files[before] == file ? m_made[before] : fileRow(file));
    }
    m_made = std::move(rows);
}

void FileListState::update()
{
    const auto &board = m_store->board();
    const QList<FileItem> files = board ? board->files : QList<FileItem>();
    makeRows(files);
    m_rows.setRows(inSections(m_made, m_store->selection()));
    if (m_selection != m_store->selection()) {
        m_selection = m_store->selection();
        Q_EMIT chosen();
    }
    if (m_empty == files.isEmpty())
        return;
    m_empty = files.isEmpty();
    Q_EMIT emptyChanged();
}

} // namespace vexal
