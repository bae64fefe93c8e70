#pragma once

#include "api.h"
#include "applicationpresence.h"
#include "images.h"
#include "signin.h"
#include "surroundings.h"

namespace vexal {

/// What a client works with beside its server, chosen where the program starts. All of it outlives the client.
struct Desktop
{
    Preferences &preferences;
    CredentialStore &credentials;
    const NetworkPresence &network;
    Browser &browser;
    Opener &opener;
    LauncherBadge &badge;
    Notifications &notifications;
    FilePicker &picker;
    QString device;    ///< What the server knows this computer by.
    QString downloads; ///< The folder that reports are saved in.
};

/// The client's way to its server: requests, signing in, pictures.
class BoardClient
{
public:
    explicit BoardClient(const Desktop &desktop);

    /// What a Store needs to be live.
    Surroundings surroundings();

    /// Has pictures from the server, with the credential of the moment and behind everything that the person waits for.
    Images::Fetch fetch();

private:
    Desktop m_desktop;
    API m_api;
    SignIn m_signIn;
    ApplicationPresence m_windows;
};

} // namespace vexal
