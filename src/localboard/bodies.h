#pragma once

#include "outcome.h"
#include "review.h"

#include <QJsonObject>

/// What the requests of the API carry. Each function answers what a body says, or refuses it with a sentence. A key
/// that is null counts as missing; keys that are not known are ignored.
namespace vexal::local {

/// The JSON object that \a bytes are.
Outcome<QJsonObject> objectIn(const QByteArray &bytes);

/// The text under \a key, which must be there.
Outcome<QString> textIn(const QJsonObject &body, QLatin1StringView key);

/// The list of texts under \a key, which must be there.
Outcome<QList<QString>> textsIn(const QJsonObject &body, QLatin1StringView key);

/// {"file_id", "text", "page"?, "x"?, "y"?, "finding_id"?}
Outcome<NewNote> newNoteIn(const QJsonObject &body);

/// {"text"?, "resolved"?, "deleted"?}, at least one of them
Outcome<NoteChange> noteChangeIn(const QJsonObject &body);

} // namespace vexal::local
