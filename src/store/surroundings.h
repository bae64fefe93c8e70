#pragma once

#include "sleep.h"

#include <QString>

namespace vexal {

class API;
class CredentialStore;
class FilePicker;
class LauncherBadge;
class Notifications;
class Opener;
class SignIn;
class WindowPresence;

/// Everything that a Store works with. It owns none of it, and all of it outlives the Store.
struct Surroundings
{
    API &api;
    SignIn &signIn;
    CredentialStore &credentials;
    const WindowPresence &windows;
    LauncherBadge &badge;
    Notifications &notifications;
    Opener &opener;
    FilePicker &picker;
    QString downloads; ///< The folder that reports are saved in.
    qint64 build = 0;  ///< The running client's build number.
    Sleep sleep = sleepForReal;
};

} // namespace vexal
