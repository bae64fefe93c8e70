#pragma once

#include "board.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace vexal {

/// Why a document is no record. For the log: nobody is shown it.
struct DecodeError
{
    QString path;   ///< Where: "files[3].status". Empty when it is the document as a whole.
    QString reason; ///< What: "missing", "not a string", ...

    /// Both as one line: "files[3].status: missing".
    QString text() const;
};

/// A decoded record, or why there is none.
template <typename R>
struct Decoded
{
    std::optional<R> record;
    DecodeError error; ///< Says something only when there is no record.

    explicit operator bool() const { return record.has_value(); }
    R &operator*() { return *record; }
    const R &operator*() const { return *record; }
    R *operator->() { return &*record; }
    const R *operator->() const { return &*record; }
};

/// Reads the record of type \a R that \a bytes, one JSON document in UTF-8, hold; every record of board.h can be read.
///
/// The document is taken or refused whole. A field that is not optional must be there; an optional one may be missing
/// or null, and is then absent. A value of the wrong type fails, and so does a document that is not well-formed
/// anywhere. Keys that the record does not have are ignored, whatever they hold; of a key that is given twice the first
/// counts. An integer may be written as 7.0 or 7e0; 7.5 is none, nor is one beyond 64 bits. A surrogate without its
/// other half fails; a byte-order mark at the start is skipped.
///
/// The bytes are read in place where they are handed over (std::move) and nobody else has them, else from a copy.
template <Record R>
Decoded<R> decode(QByteArray bytes);

} // namespace vexal
