// A board in a normal window, with nothing else needed: vexal-demo FOLDER [--shot FILE].
#include "samplefolder.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

void fetchNothing(const QString &, QObject *, const Images::Fetched &fetched)
{
    fetched(std::nullopt);
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    const QStringList arguments = commandLine(argc, argv);
    QGuiApplication application(argc, argv);
    const QString folder = arguments.value(0);
    auto read = readSample(folder);
    if (!read.sample) {
        std::fprintf(stderr, "vexal-demo FOLDER [--shot FILE]: %s holds no sample board\n", qPrintable(folder));
        return 2;
    }
    applyTypeface(application, Typeface::Desktops);
    // The sample's people were busy a moment ago, whenever it is looked at.
    VexalApp app({clockFrom(latestMoment(*read.sample)), QString(), fetchNothing});
    app.showSample(std::move(*read.sample), folder);
    app.show();
    if (const auto options = launchOptions(arguments))
        captureWhenSettled(options->shot);
    return QGuiApplication::exec();
}
