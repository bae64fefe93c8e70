#pragma once

#include "filerow.h"
#include "rowlist.h"
#include "store.h"

namespace vexal {

/// The sidebar's list of files, kept in step with the store.
class FileListState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vexal::Store *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(QAbstractListModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)

public:
    explicit FileListState(QObject *parent = nullptr);

    Store *store() const { return m_store; }
    void setStore(Store *store);

    /// The files as rows of `fileRow`.
    QAbstractListModel *rows() { return &m_rows; }
    /// There is no board, or none with files.
    bool empty() const { return m_empty; }

    /// Where the first selected file stands in the list; -1 without one.
    Q_INVOKABLE int chosenRow() const;

Q_SIGNALS:
    /// The person, or the program for them, has selected one other file.
    void chosen();
    void storeChanged();
    void emptyChanged();

private:
    void update();
    bool renewRows(const QList<FileItem> &files, const QList<size_t> &fingerprints);
    void arrangeRows(const QList<FileItem> &files, const QList<size_t> &fingerprints);
    void listRows();

    Store *m_store = nullptr;
    QList<size_t> m_fingerprints; ///< Of the board's files.
    QList<FileRow> m_made;        ///< One for each of them, not selected.
    QList<int> m_places;          ///< Where each of these stands in the list; -1 for one that is not listed.
    QSet<QString> m_selection;
    RowList<FileRow> m_rows;
    bool m_empty = true;
};

} // namespace vexal
