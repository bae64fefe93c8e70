#pragma once

#include "boardclient.h"
#include "demosignin.h"
#include "desktopopener.h"
#include "dialogfilepicker.h"
#include "filepreferences.h"
#include "memorycredentialstore.h"
#include "quietdesktop.h"
#include "systemnetworkpresence.h"
#include "vexalapp.h"

#include <QProcess>
#include <QTemporaryDir>

namespace vexal::bench {

/// The whole client on a server, in this process, with nothing on the desktop but its window.
class LiveClient
{
public:
    /// Looks at the server by itself, or only when it is told to.
    enum class Pace { ItsOwn, None };

    /// A person is signed in with the token; without one they sign in as soon as `app.store().signIn()` is called.
    LiveClient(const QUrl &server, const QString &token, Pace pace = Pace::ItsOwn);

    API &api() { return m_client.surroundings().api; }
    QString token() const { return m_credentials.token(); }

private:
    QTemporaryDir m_folder;
    FilePreferences m_preferences;
    MemoryCredentialStore m_credentials;
    SystemNetworkPresence m_network;
    DesktopOpener m_opener;
    DemoSignIn m_browser;
    NoBadge m_badge;
    NoNotifications m_notifications;
    DialogFilePicker m_picker;
    BoardClient m_client;

    Surroundings surroundings(Pace pace);

public:
    VexalApp app;
};

/// vexal-board as a process of its own, on the sample board, with a fresh folder.
class BoardServer
{
public:
    explicit BoardServer(const QString &seed);
    ~BoardServer();
    BoardServer(const BoardServer &) = delete;
    BoardServer &operator=(const BoardServer &) = delete;

    /// Where it is; empty when it did not start.
    const QUrl &url() const { return m_url; }

private:
    QTemporaryDir m_data;
    QProcess m_process;
    QUrl m_url;
};

} // namespace vexal::bench
