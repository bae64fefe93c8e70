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
    const QList<size_t> fingerprints = board ? m_store->fileFingerprints() : QList<size_t>();
    const bool isChosen = m_selection != m_store->selection();
    const QSet<QString> before = m_selection;
    m_selection = m_store->selection();
    if (!renewRows(files, fingerprints))
        arrangeRows(files, fingerprints);
    else if (isChosen)
        listRows();
    m_fingerprints = fingerprints;
    // What is left of several was seen when it was selected.
    if (isChosen && m_selection.size() == 1 && !before.contains(m_selection))
        Q_EMIT chosen();
    if (m_empty == files.isEmpty())
        return;
    m_empty = files.isEmpty();
    Q_EMIT emptyChanged();
}

// A board has thousands of files, of which few change at a time: their rows are made anew where they stand. False when
// that is not all, for a file has come, gone, moved or changed its section.
bool FileListState::renewRows(const QList<FileItem> &files, const QList<size_t> &fingerprints)
{
    if (fingerprints.size() != m_fingerprints.size())
        return false;
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (fingerprints[i] == m_fingerprints[i])
            continue;
        FileRow row = fileRow(files[i]);
        const int place = m_places[i];
        if (row.section != m_made[i].section || (place >= 0 && m_rows.rows().value(place).key != row.key))
            return false;
        m_made[i] = row;
        if (place < 0)
            continue;
        row.selected = m_selection.contains(row.key);
        m_rows.setRow(place, row);
    }
    return true;
}

// The row of a file that is as it was, wherever it stands now, is not made again.
void FileListState::arrangeRows(const QList<FileItem> &files, const QList<size_t> &fingerprints)
{
    QHash<size_t, qsizetype> before;
    before.reserve(m_fingerprints.size());
    for (qsizetype i = 0; i < m_fingerprints.size(); ++i)
        before.insert(m_fingerprints[i], i);
    QList<FileRow> made;
    made.reserve(files.size());
    for (qsizetype i = 0; i < files.size(); ++i) {
        const auto known = before.constFind(fingerprints[i]);
        made.append(known == before.cend() ? fileRow(files[i]) : m_made[*known]);
    }
    m_made = std::move(made);
    listRows();
}

void FileListState::listRows()
{
    const QList<qsizetype> order = listOrder(m_made);
    m_places = QList<int>(m_made.size(), -1);
    QList<FileRow> rows;
    rows.reserve(order.size());
    for (const qsizetype file : order) {
        m_places[file] = int(rows.size());
        rows.append(m_made[file]);
        rows.last().selected = m_selection.contains(rows.last().key);
    }
    m_rows.setRows(std::move(rows));
}

} // namespace vexal
