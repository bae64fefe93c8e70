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
    /// The person, or the program for them, has selected something else.
    void chosen();
    void storeChanged();
    void emptyChanged();

private:
    void update();
    void makeRows(const QList<FileItem> &files);
    bool renewRows(const QList<FileItem> &files);
    void arrangeRows(const QList<FileItem> &files);

    Store *m_store = nullptr;
    QList<FileItem> m_files; ///< Of the board.
    QList<FileRow> m_made;   ///< One for each of them, not selected.
    QSet<QString> m_selection;
    RowList<FileRow> m_rows;
    bool m_empty = true;
};

} // namespace vexal
