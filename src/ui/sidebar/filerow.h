#pragma once

#include "board.h"
#include "palette.h"

#include <QtQml/qqmlregistration.h>

#include <QSet>

namespace vexal {

/// The mark at the end of a file's row: a number on a colour, or a symbol.
class FileRowCount
{
    Q_GADGET
    QML_VALUE_TYPE(fileRowCount)
    Q_PROPERTY(QString number MEMBER number FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(int tone READ toneValue FINAL)
    Q_PROPERTY(QString help MEMBER help FINAL)

public:
    QString number; ///< Empty where a symbol stands.
    QString symbol; ///< Empty where a number stands.
    Tone::Value tone = Tone::Neutral;
    QString help; ///< Says the mark in words.
    int toneValue() const { return tone; }
    bool operator==(const FileRowCount &) const = default;
};

/// A file as the sidebar's list shows it.
class FileRow
{
    Q_GADGET
    QML_VALUE_TYPE(fileRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString section MEMBER section FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString details MEMBER details FINAL)
    Q_PROPERTY(QString thumb MEMBER thumb FINAL)
    Q_PROPERTY(vexal::FileRowCount count MEMBER count FINAL)
    Q_PROPERTY(bool selected MEMBER selected FINAL)

public:
    QString key; ///< The file's id.
    QString section;
    QString title;
    QString details; ///< Supplier, purchase order and pages, as far as they are known.
    QString thumb;   ///< Blob key; empty without a picture.
    FileRowCount count;
    bool selected = false;
    bool operator==(const FileRow &) const = default;
};

/// What the mark of a file's row says: reviewed, real issues, work left, no differences, or nothing to compare with.
FileRowCount fileRowCount(const FileItem &file);

/// The second line of a file's row: "Ostrel Print · PO 2231 · 16 p".
QString fileRowDetails(const FileItem &file);

/// The section a status belongs to: "To review", "In review", "Reviewed"; empty for a status that no section lists.
QString fileSection(const QString &status);

/// A file as a row that is not selected.
FileRow fileRow(const FileItem &file);

/// Which of the rows of a board's files the list has, and in which order: section by section, within each in board
/// order.
QList<qsizetype> listOrder(const QList<FileRow> &rows);

} // namespace vexal
