// What pictures cost: opening a folder of them, bringing a page down to the screen, and the difference of two pages.
#include "images.h"
#include "difference.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QGuiApplication>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

QString folder;

Picture largest()
{
    std::optional<Picture> found;
    for (const QFileInfo &file : QDir(folder).entryInfoList({u"*.jpg"_s}, QDir::Files)) {
        const auto picture = Picture::fromFile(file.filePath());
        if (picture && (!found || picture->size().height() > found->size().height()))
            found = picture;
    }
    if (!found)
        qFatal("%s holds no pictures", qPrintable(folder));
    return *found;
}

void openFolder(benchmark::State &state)
{
    while (state.KeepRunning()) {
        Images images({}, [](const QString &, QObject *, const Images::Fetched &) {});
        images.addSamples(folder);
    }
    state.counters["pictures"] = double(QDir(folder).entryList({u"*.jpg"_s, u"*.png"_s}, QDir::Files).size());
}
BENCHMARK(openFolder)->Unit(benchmark::kMillisecond);

void wholePage(benchmark::State &state)
{
    const Picture page = largest();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(page.decoded(page.size()));
}
BENCHMARK(wholePage)->Unit(benchmark::kMillisecond);

void pageAtShownSize(benchmark::State &state)
{
    const Picture page = largest();
    const QSize shown = page.size().scaled(600, 840, Qt::KeepAspectRatio);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(page.decoded(shown));
}
BENCHMARK(pageAtShownSize)->Unit(benchmark::kMillisecond);

void differenceOfTwoPages(benchmark::State &state)
{
    QImage ours(2480, 3508, QImage::Format_RGB32);
    ours.fill(Qt::white);
    QImage theirs = ours.copy();
    theirs.fill(Qt::lightGray);
    while (state.KeepRunning())
        benchmark::DoNotOptimize(pageDifference(theirs, ours));
}
BENCHMARK(differenceOfTwoPages)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    folder = application.arguments().value(1);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
