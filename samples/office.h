#pragma once

#include "board.h"

/// What goes on in the house besides the proofs: who is there, what the worker machine did, and the log of it all.
namespace vexal::sample {

/// The moment that the sample shows, which is that of its last event.
double now();

Me me();
QList<Person> people(); ///< In the order of the board.
Job lastSync();
QList<Job> jobs(); ///< The newest first, the last sync among them.
QList<Report> reports();
QList<Event> events(); ///< The newest first.

/// Paints the photographs of the people who have one into the folder. False when one cannot be written.
bool writePhotos(const QString &folder);

} // namespace vexal::sample
