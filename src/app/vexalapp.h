#pragma once

#include "clock.h"
#include "images.h"
#include "launchoptions.h"
#include "store.h"
#include "surroundings.h"
#include "windowmemory.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>

#include <memory>
#include <optional>

namespace vexal {

class DesktopLook;
class Notifications;

/// What a run of the program is made of: real parts in the client, others in the demo and in tests.
struct Parts
{
    Clock clock;
    QString pictureFolder;                         ///< Where pictures are kept between runs.
    Images::Fetch fetch;                           ///< How the bytes of a picture are had.
    std::optional<Surroundings> surroundings = {}; ///< Those of a live store; without them there is no server.
};

/// The running application: the one store, the one picture cache and the one window, joined.
class VexalApp
{
public:
    explicit VexalApp(Parts parts);
    ~VexalApp();

    Store &store() { return *m_store; }
    Images &images() { return m_images; }
    QQuickView &window() { return m_window; }

    /// Makes what a photograph shows the same each time: the program's own typeface, nothing that moves, the asked size
    /// and appearance, out of reach of a window manager.
    void pose(const LaunchOptions &options);
    /// Follows the desktop's look from now on.
    void follow(const DesktopLook &look);
    /// Brings the window back to the place that the file at the path holds, and keeps it there.
    void keepPlace(const QString &path);
    /// Opens what the person clicks on in a notification, and takes it back when they look at the window.
    void hear(Notifications &notifications);
    /// Puts a sample board and its pictures in the place of a server's.
    void showSample(Sample sample, const QString &folder);
    /// Opens the window.
    void show();
    /// Waits until the screens have settled and what they show is decoded, photographs the window to the path and ends
    /// the program with the capture's status.
    void captureWhenSettled(const QString &path);
    /// Takes URLs that were opened into the program from outside, and brings the window forward.
    void open(const QList<QUrl> &urls);
    /// Brings the open window before the others, as far as the desktop lets a program do that.
    void comeForward();

private:
    std::unique_ptr<Store> m_store;
    Images m_images;
    QQmlEngine m_engine;
    QQmlComponent m_screens; ///< Being loaded in a thread of the engine while the window is made.
    QQuickView m_window;
    std::unique_ptr<WindowMemory> m_memory; ///< None: the window stands where it is put.
};

/// Lets `then` wait for the answers of the credential store and of the desktop, but not for long: the first frame must
/// neither be late, nor show the sign-in screen to someone who is signed in, nor light to someone who wants dark.
void whenKnown(CredentialStore &credentials, DesktopLook &look, QObject *context, const std::function<void()> &then);

/// What has to be said to Qt before the application object is made.
void prepareProcess();

} // namespace vexal
