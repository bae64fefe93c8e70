#pragma once

#include "accessible.h"
#include "keyringdaemon.h"
#include "privatebus.h"

#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace vexal {

/// The client that the stories are about: an installed one when VEXAL_PROGRAM names it, else that of this build.
QString vexalProgram();

/// A person's desktop that no one else sees: a home, a display, a session bus with a keyring and an accessibility bus,
/// a browser, and Vexal as the program for its links. Whatever is started with its environment stays on it. One a
/// process: its session bus is the process's own, too.
class Desk
{
public:
    Desk();
    ~Desk();
    Desk(const Desk &) = delete;
    Desk &operator=(const Desk &) = delete;

    const QProcessEnvironment &environment() const { return m_environment; }
    QString path(const QString &name) const { return m_home.filePath(name); }
    QString display() const { return m_environment.value(QStringLiteral("DISPLAY")); }
    KeyringDaemon &keyring() { return *m_keyring; }

    /// Lets the browser hand the client's links over without a question to pages of that server.
    void trustPagesOf(int port) const;

    /// Ends the browser and forgets all that it and the client wrote: settings, pictures, downloads, and the token.
    void clear();

    /// Files of that kind are opened by a program that writes their paths to the log, a line each.
    void logOpened(const QString &mimeType, const QString &log) const;

    /// The program of that process on the accessibility bus, once it is there.
    std::optional<Accessible> program(qint64 processId) const;
    /// The one of that name.
    std::optional<Accessible> program(const QString &name) const;

    /// The pixels of the display at the place, as they stand there now.
    QByteArray pixels(const QRect &place) const;

private:
    void startDisplay();
    void startAccessibility();
    void installPrograms() const;
    void write(const QString &name, const QString &text) const;
    QList<Accessible> programs() const;

    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
    QProcess m_display;
    PrivateBus m_bus;
    std::unique_ptr<KeyringDaemon> m_keyring;
    QProcess m_launcher;
    std::optional<QDBusConnection> m_accessibility;
};

} // namespace vexal
