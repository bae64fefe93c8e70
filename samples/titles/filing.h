#pragma once

#include "plan.h"

/// How the house files what it gets: links and our own files.
namespace vexal::sample {

/// The links of a proof that came by mail and was filed; `indesign` is the name of our document, if it was found.
Links filed(const QString &code, const QString &folder, const QString &indesign = {});

/// What we sent to the supplier.
Ref sent(const QString &name, const QString &code, const QString &note = {});
/// The last print, of so many pages.
Ref printed(const QString &name, const QString &code, const QString &note = {});

/// A note on a page of the file: the writer, the time and the text; the rest is set by hand.
Note note(const QString &id, std::optional<qint64> page, const QString &by, double at, const QString &text);

} // namespace vexal::sample
