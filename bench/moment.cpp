#include "moment.h"

#include <QFile>

#include <chrono>
#include <cstdio>
#include <ctime>

namespace vexal::bench {

double millisecondsSince(const QByteArray &nanoseconds)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return double(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - nanoseconds.toLongLong()) / 1e6;
}

double processorSeconds()
{
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return double(used.tv_sec) + double(used.tv_nsec) / 1e9;
}

double proportionalMegabytes()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).chopped(2).trimmed().toDouble() / 1024;
    }
    return 0;
}

void tell(const char *name, double figure)
{
    std::printf("%s %.3f\n", name, figure);
    std::fflush(stdout);
}

} // namespace vexal::bench
