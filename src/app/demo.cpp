// The client and a board of its own in one process, signed in, with nothing else needed:
// vexal-demo --seed FOLDER [--data FOLDER] [--shot FILE].
#include "boardclient.h"
#include "demosignin.h"
#include "desktopopener.h"
#include "dialogfilepicker.h"
#include "filepreferences.h"
#include "localboard.h"
#include "memorycredentialstore.h"
#include "portallook.h"
#include "quietdesktop.h"
#include "samplefolder.h"
#include "systemnetworkpresence.h"
#include "typeface.h"
#include "vexalapp.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

int fail(const QString &why)
{
    std::fprintf(stderr, "vexal-demo --seed FOLDER [--data FOLDER] [--shot FILE]: %s\n", qUtf8Printable(why));
    return 2;
}

int demo(const QString &email, LocalBoard &board, const QDir &data, const std::optional<LaunchOptions> &options)
{
    const PortalLook look(QDBusConnection::sessionBus());
    FilePreferences preferences(data.filePath(u"Vexal.conf"_s), {u"-ServerURL"_s, board.url().toString()});
    MemoryCredentialStore credentials(board.signInAs(email));
    const SystemNetworkPresence network;
    std::function<void(const QUrl &)> opened;
    DemoSignIn browser(email, [&opened](const QUrl &url) { opened(url); });
    DesktopOpener opener;
    NoBadge badge;
    NoNotifications notifications;
    DialogFilePicker picker;
    BoardClient client({.preferences = preferences,
                        .credentials = credentials,
                        .network = network,
                        .browser = browser,
                        .opener = opener,
                        .badge = badge,
                        .notifications = notifications,
                        .picker = picker,
                        .device = u"Demo"_s,
                        .downloads = data.filePath(u"downloads"_s)});
    VexalApp app({systemClock(), data.filePath(u"pictures"_s), client.fetch(), client.surroundings()});
    opened = [&app](const QUrl &url) { app.store().openUrl(url); };
    app.store().resume();
    if (options) {
        app.pose(*options);
    } else {
        app.follow(look);
        app.keepPlace(data.filePath(u"Window.ini"_s));
    }
    app.show();
    if (options)
        app.captureWhenSettled(options->shot);
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    const QStringList arguments = commandLine(argc, argv);
    QGuiApplication application(argc, argv);
    const QString seed = valueOf(u"--seed", arguments).value_or(QString());
    const auto sample = readSample(seed).sample;
    if (!sample)
        return fail(u"%1 holds no sample board"_s.arg(seed));
    const QTemporaryDir passing;
    const QDir data(valueOf(u"--data", arguments).value_or(passing.path()));
    LocalBoard board({.data = data.filePath(u"board"_s), .seed = seed});
    if (const auto problem = board.start())
        return fail(*problem);
    applyTypeface(application, Typeface::Desktops);
    return demo(sample->board.me.email, board, data, launchOptions(arguments));
}
