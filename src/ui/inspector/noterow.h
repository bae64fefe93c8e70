#pragma once

#include "findingrow.h"

namespace vexal {

/// A note as its row shows it. What a person types into it lives beside the rows.
class NoteRow
{
    Q_GADGET
    QML_VALUE_TYPE(noteRow)
    Q_PROPERTY(QString key MEMBER key FINAL)
    Q_PROPERTY(QString number MEMBER number FINAL)
    Q_PROPERTY(QString author MEMBER author FINAL)
    Q_PROPERTY(QString when MEMBER when FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(bool resolved MEMBER resolved FINAL)
    Q_PROPERTY(QString resolveHelp MEMBER resolveHelp FINAL)
    Q_PROPERTY(bool busy MEMBER busy FINAL)
    Q_PROPERTY(bool editing MEMBER editing FINAL)

public:
    QString key;    ///< The note's id.
    QString number; ///< That of its pin; empty without one.
    QString author;
    QString when; ///< "18 min ago · edited"
    QString text;
    bool resolved = false;
    QString resolveHelp;
    bool busy = false;
    bool editing = false;
    bool operator==(const NoteRow &) const = default;
};

/// The notes of a page itself, in their order; under the first page's, those on the whole file.
QList<Note> notesOfPage(const QList<Note> &notes, qint64 index);

/// The notes on a finding, in their order.
QList<Note> notesOfFinding(const QList<Note> &notes, const QString &finding);

/// The notes as rows. `numbers` holds those of the pins, `editing` the ids of the notes that are being edited.
QList<NoteRow> noteRows(const QList<Note> &notes, const QHash<QString, int> &numbers, const QSet<QString> &editing,
                        const Telling &telling);

} // namespace vexal
