#include "locations.h"
#include "samplefolder.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QGuiApplication>

#include <cstdio>

using namespace vexal;

namespace {

// A run without a server: nothing is asked for.
void fetchNothing(const QString &, QObject *, const Images::Fetched &fetched)
{
    fetched(std::nullopt);
}

int photograph(QGuiApplication &application, const LaunchOptions &options)
{
    const bool wanted = options.sample && !options.signin;
    const SampleRead read = wanted ? readSample(*options.sample) : SampleRead();
    if (read.undecodable) {
        std::fputs("sample.json did not decode\n", stderr);
        return 1;
    }
    applyTypeface(application, Typeface::Ours);
    VexalApp app({standingClock(read.sample ? latestMoment(*read.sample) : QDateTime::fromMSecsSinceEpoch(0)),
                  picturesFolder(), fetchNothing});
    app.pose(options);
    if (read.sample) {
        app.showSample(*read.sample, *options.sample);
        stage(app.store(), options);
    }
    app.show();
    captureWhenSettled(options.shot);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const auto options = launchOptions(commandLine(argc, argv));
    prepareProcess();
    QGuiApplication application(argc, argv);
    if (options)
        return photograph(application, *options);
    applyTypeface(application, Typeface::Desktops);
    VexalApp app({systemClock(), picturesFolder(), fetchNothing});
    app.show();
    return QGuiApplication::exec();
}
