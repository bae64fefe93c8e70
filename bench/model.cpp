#include "boards.h"
#include "decode.h"
#include "encode.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <ctime>
#include <limits>
#include <malloc.h>
#include <map>

/// Decoding a board into records, beside two parsers that only parse the same bytes: QJsonDocument and simdjson's own.
namespace {

using namespace vexal;

/// Times \a work alone, on the processor's clock: neither what \a prepare does before it, nor how the result is thrown
/// away, nor what else runs on the machine.
template <typename Prepare, typename Work>
void timeAlone(benchmark::State &state, Prepare prepare, Work work)
{
    for (auto step : state) {
        auto input = prepare();
        const std::clock_t start = std::clock();
        const auto result = work(std::move(input));
        state.SetIterationTime(double(std::clock() - start) / CLOCKS_PER_SEC);
        benchmark::DoNotOptimize(&result);
    }
}

/// The bytes are handed over as they come from the network: nobody else has them, and there is no room behind them.
void decodeBoard(benchmark::State &state, const QByteArray &bytes)
{
    timeAlone(
        state, [&] { return QByteArray(bytes.constData(), bytes.size()); },
        [](QByteArray own) { return decode<BoardState>(std::move(own)); });
}

void parseWithQt(benchmark::State &state, const QByteArray &bytes)
{
    timeAlone(
        state, [&] { return bytes; }, [](const QByteArray &same) { return QJsonDocument::fromJson(same); });
}

/// With the parser and the padded bytes kept from one time to the next, as simdjson is meant to be used.
void parseWithSimdjson(benchmark::State &state, const QByteArray &bytes)
{
    simdjson::dom::parser parser;
    const simdjson::padded_string padded(bytes.constData(), size_t(bytes.size()));
    timeAlone(
        state, [&] { return &padded; },
        [&](const simdjson::padded_string *same) { return parser.parse(*same).error(); });
}

/// Prints as always, and keeps the medians.
class Medians : public benchmark::ConsoleReporter
{
public:
    Medians()
        : ConsoleReporter(OO_None)
    {
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// The median time of a benchmark; 0 when it did not run.
    double of(const std::string &name) const
    {
        const auto found = m_medians.find(name);
        return found == m_medians.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> m_medians;
};

/// Lets the process keep the memory that it frees, for all that is measured here: otherwise a large part of a time is
/// the kernel's, for handing out fresh pages, and varies with what was freed before.
void keepMemory()
{
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
}

struct Shape
{
    const char *name;
    BoardSize size;
};

constexpr Shape shapes[] = {
    {"2000 files", {.files = 2'000, .pagesAFile = 0}},
    {"20000 files", {.files = 20'000, .pagesAFile = 0}},
    {"2000 files of 4 pages", {.files = 2'000, .pagesAFile = 4}},
};

std::string named(const char *what, const Shape &shape)
{
    return std::string(what) + ", " + shape.name;
}

void add(const std::string &name, void (*run)(benchmark::State &, const QByteArray &), const QByteArray &bytes)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) { run(state, bytes); })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Repetitions(7)
        ->ReportAggregatesOnly();
}

void sayRatios(const Medians &medians, const Shape &shape)
{
    const double ours = medians.of(named("decode", shape));
    const double qt = medians.of(named("QJsonDocument", shape));
    const double simdjson = medians.of(named("simdjson", shape));
    if (ours > 0 && qt > 0 && simdjson > 0)
        std::printf("decode %s: %.1fx as fast as QJsonDocument, %.1fx the time of simdjson's parse\n", shape.name,
                    qt / ours, ours / simdjson);
}

} // namespace

int main(int argc, char **argv)
{
    keepMemory();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    for (const Shape &shape : shapes) {
        const QByteArray bytes = encode(busyBoard(shape.size));
        std::printf("%s: %.1f MB\n", shape.name, double(bytes.size()) / 1e6);
        add(named("decode", shape), decodeBoard, bytes);
        add(named("QJsonDocument", shape), parseWithQt, bytes);
        add(named("simdjson", shape), parseWithSimdjson, bytes);
    }
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);
    for (const Shape &shape : shapes)
        sayRatios(medians, shape);
    return 0;
}
