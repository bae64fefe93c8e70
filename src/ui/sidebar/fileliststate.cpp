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

// The row of a file that is as it was is not made again: a board has thousands.
void FileListState::makeRows(const QList<FileItem> &files)
{
    if (files.isSharedWith(m_files))
        return;
    QHash<QString, qsizetype> places;
    const auto placeBefore = [this, &places](const QString &id, qsizetype now) {
        if (now < m_files.size() && m_files[now].id == id)
            return now;
        for (qsizetype i = places.isEmpty() ? 0 : m_files.size(); i < m_files.size(); ++i)
            places.insert(m_files[i].id, i);
        return places.value(id, -1);
    };
    QList<FileRow> rows;
    rows.reserve(files.size());
    for (qsizetype i = 0; i < files.size(); ++i) {
        const qsizetype before = placeBefore(files[i].id, i);
        rows.append(before >= 0 && m_files[before] == files[i] ? m_made[before] : fileRow(files[i]));
    }
    m_files = files;
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
