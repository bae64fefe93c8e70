#pragma once

#include <QByteArray>

/// What the window benchmarks measure of their own process, and how they tell it.
namespace vexal::bench {

/// Milliseconds since a start that another process noted as nanoseconds since 1970.
double millisecondsSince(const QByteArray &nanoseconds);

/// Processor time that this process has used so far, in seconds, its system calls included.
double processorSeconds();

/// Memory in megabytes: this process's own pages and its share of those that it shares (PSS).
double proportionalMegabytes();

/// One figure on a line of its own: "start 182.4".
void tell(const char *name, double figure);

} // namespace vexal::bench
