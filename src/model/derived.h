#pragma once

#include "board.h"

#include <QStringView>

/// What the screens show of one record beside its fields.
namespace vexal {

/// The longest text from outside that reaches a screen, in units of UTF-16: 10,000 characters of any kind. Laying out a
/// much longer one would hold the window up.
constexpr qsizetype longestShown = 20'000;

/// A text from outside as a screen shows it: one that is too long ends in "…", after a whole character.
QString shownText(const QString &text);
QString shownText(const std::optional<QString> &text);

/// The same for a place that has one line: where the text breaks into lines it has a blank.
QString shownLine(const QString &text);

/// How many pages a file says that it has; nothing where it says nothing or cannot have as many.
std::optional<qint64> pageCount(const FileItem &file);

/// What a file is called: its title and component, else its file name, else "Untitled file".
QString displayTitle(const FileItem &file);

/// The first of our files in the role \a role ("submitted", "latest") that \a file was matched to; null when there is
/// none. It lives as long as \a file and is not changed.
const Ref *ourFile(const FileItem &file, QStringView role);
const Ref *ourFile(const FileItem &&file, QStringView role) = delete;

/// Who a file came from: "Ostrel Print"; "Supplier" when nobody is named.
QString supplierName(const FileItem &file);

/// The first finding of high severity; null when there is none. It lives as long as \a detail and is not changed.
const Finding *firstHigh(const FileDetail &detail);
const Finding *firstHigh(const FileDetail &&detail) = delete;

/// Nothing that anybody has to look at: a change of our own that came through, or a check that passed.
bool isSettled(const Finding &finding);

/// Width over height of a page, of its picture rather than of its paper; 0.77 when neither is known.
double aspect(const Page &page);

/// The same of a page of ours; \a otherwise when its picture's is not known.
double aspect(const RefPage &reference, double otherwise);

/// The page's own label, else its number as people count, from 1.
QString pageLabel(const Page &page);

/// The note is done with.
bool isResolved(const Note &note);

/// The first word of a person's name; words are delimited by blanks alone.
QString firstName(const Person &person);

} // namespace vexal
