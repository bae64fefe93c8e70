#pragma once

#include "board.h"

#include <QStringView>

/// What the screens show of one record beside its fields.
namespace vexal {

/// What a file is called: its title and component, else its file name, else "Untitled file".
QString displayTitle(const FileItem &file);

/// The first of our files in the role \a role ("submitted", "latest") that \a file was matched to; null when there is
/// none. It lives as long as \a file and is not changed.
const Ref *ourFile(const FileItem &file, QStringView role);
const Ref *ourFile(const FileItem &&file, QStringView role) = delete;

/// Width over height of a page, of its picture rather than of its paper; 0.77 when neither is known.
double aspect(const Page &page);

/// The page's own label, else its number as people count, from 1.
QString pageLabel(const Page &page);

/// The note is done with.
bool isResolved(const Note &note);

/// The first word of a person's name; words are delimited by blanks alone.
QString firstName(const Person &person);

} // namespace vexal
