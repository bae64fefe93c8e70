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

void FileListState::update()
{
    const auto &board = m_store->board();
    const QList<FileItem> files = board ? board->files : QList<FileItem>();
    m_rows.setRows(fileRows(files, m_store->selection()));
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
