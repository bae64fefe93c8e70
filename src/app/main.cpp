#include "boardclient.h"
#include "defaultbrowser.h"
#include "deployment.h"
#include "desktopopener.h"
#include "dialogfilepicker.h"
#include "filepreferences.h"
#include "freedesktopnotifications.h"
#include "hostname.h"
#include "keyringcredentialstore.h"
#include "locations.h"
#include "portallook.h"
#include "samplefolder.h"
#include "singleinstance.h"
#include "systemnetworkpresence.h"
#include "typeface.h"
#include "unitylauncherbadge.h"
#include "vexalapp.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

/// The sample board or the sign-in screen, which need no server.
int photograph(QGuiApplication &application, const LaunchOptions &options)
{
    const bool wanted = options.sample && !options.signin;
    const SampleRead read = wanted ? readSample(*options.sample) : SampleRead();
    if (read.undecodable) {
        std::fputs("sample.json did not decode\n", stderr);
        return 1;
    }
    applyTypeface(application, Typeface::Ours);
    // Nothing of the person's own gets into the picture: no folder of cached pictures.
    VexalApp app({standingClock(read.sample ? latestMoment(*read.sample) : QDateTime::fromMSecsSinceEpoch(0)),
                  QString(), Images::fetchNothing});
    app.pose(options);
    if (read.sample) {
        app.showSample(*read.sample, *options.sample);
        stage(app.store(), options);
    }
    app.show();
    app.captureWhenSettled(options.shot);
    return QGuiApplication::exec();
}

/// The client on its server. A photograph of it is no second start: it may be taken beside the one that runs.
int live(QGuiApplication &application, const QStringList &arguments, const std::optional<LaunchOptions> &options)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const QString id = deployment::applicationId.toString();
    SingleInstance instance(bus, id, runtimeFolder());
    if (!options && instance.claim(urlsIn(arguments)) == SingleInstance::Role::Second)
        return 0;

    applyTypeface(application, options ? Typeface::Ours : Typeface::Desktops);
    PortalLook look(bus);
    FilePreferences preferences(FilePreferences::defaultPath(), arguments);
    KeyringCredentialStore credentials(bus, id, preferences);
    const SystemNetworkPresence network;
    DesktopOpener opener;
    DefaultBrowser browser(opener);
    UnityLauncherBadge badge(bus, id);
    FreedesktopNotifications notifications(bus, id);
    DialogFilePicker picker;
    BoardClient client({.preferences = preferences,
                        .credentials = credentials,
                        .network = network,
                        .browser = browser,
                        .opener = opener,
                        .badge = badge,
                        .notifications = notifications,
                        .picker = picker,
                        .device = hostName(),
                        .downloads = downloadsFolder()});
    VexalApp app({systemClock(), picturesFolder(), client.fetch(), client.surroundings()});

    QObject::connect(&instance, &SingleInstance::opened, &app.store(), [&app](const auto &urls) { app.open(urls); });
    QObject::connect(&instance, &SingleInstance::activated, &app.store(), [&app] { app.comeForward(); });
    app.hear(notifications);
    app.store().resume();
    if (options) {
        app.pose(*options);
    } else {
        app.follow(look);
        app.keepPlace(stateFolder() + u"/Window.ini"_s);
    }
    whenKnown(credentials, look, &app.store(), [&] {
        app.show();
        if (options)
            app.captureWhenSettled(options->shot);
        else
            app.open(urlsIn(arguments));
    });
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const QStringList arguments = commandLine(argc, argv);
    const auto options = launchOptions(arguments);
    prepareProcess();
    QGuiApplication application(argc, argv);
    const bool staged = options && (options->signin || options->sample);
    return staged ? photograph(application, *options) : live(application, arguments, options);
}
