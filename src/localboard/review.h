#pragma once

#include "ledger.h"
#include "outcome.h"

namespace vexal::local {

/// A note that somebody writes.
struct NewNote
{
    QString file_id;
    QString text;
    std::optional<qint64> page; ///< Absent: on the whole file.
    std::optional<double> x;    ///< Place of the pin, as fractions of the page; both or neither.
    std::optional<double> y;
    std::optional<QString> finding_id; ///< The finding that it answers.
};

/// What becomes of a note: what is absent stays.
struct NoteChange
{
    std::optional<QString> text;
    std::optional<bool> resolved;
    bool deleted = false; ///< It goes, whatever else is said.
};

/// What people do on the board. Each operation is one Change by the person \a by (an e-mail address), answers the
/// record as it is now, and changes nothing, with success, where it would change nothing. Throws DatabaseError.
class Review
{
public:
    explicit Review(Ledger &ledger)
        : m_ledger(ledger)
    {
    }

    /// \a status: "new", "in_review" or "reviewed".
    Outcome<FileItem> setStatus(const QString &by, const QString &fileId, const QString &status);

    /// \a state: "open", "issue" or "fine".
    Outcome<Finding> setFindingState(const QString &by, const QString &findingId, const QString &state);

    Outcome<Note> addNote(const QString &by, const NewNote &note);

    /// Of a deletion the note is answered as it was.
    Outcome<Note> changeNote(const QString &by, const QString &noteId, const NoteChange &change);

    /// \a jpeg: a JPEG of at most 4096 by 4096 pixels.
    Outcome<Person> setPhoto(const QString &by, const QByteArray &jpeg);

private:
    Ledger &m_ledger;
};

} // namespace vexal::local
