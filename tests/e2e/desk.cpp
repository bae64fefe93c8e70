#include "desk.h"

#include "deployment.h"
#include "frame.h"

#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr int patience = 30'000; ///< Milliseconds for a part of the desktop to be there.

constexpr auto vexalEntry = R"([Desktop Entry]
Type=Application
Name=Vexal
Exec=%1 %u
MimeType=x-scheme-handler/vexal;
)"_L1;

constexpr auto browserEntry = R"([Desktop Entry]
Type=Application
Name=Browser
Exec=%1 %U
MimeType=text/html;x-scheme-handler/http;
)"_L1;

constexpr auto defaults = R"([Default Applications]
x-scheme-handler/vexal=org.vexal.Vexal.desktop
x-scheme-handler/http=chromium.desktop
text/html=chromium.desktop
)"_L1;

// It speaks to this machine alone, whatever else it would like to ask somebody.
constexpr auto browserScript = R"(#!/bin/sh
export ACCESSIBILITY_ENABLED=1
exec chromium --no-sandbox --disable-gpu --disable-quic --no-first-run --no-default-browser-check \
    --password-store=basic --disable-background-networking --disable-component-update --disable-sync \
    --host-resolver-rules="MAP * ~NOTFOUND, EXCLUDE 127.0.0.1" --force-renderer-accessibility \
    --user-data-dir="%1" "$@"
)"_L1;

constexpr auto viewerEntry = R"([Desktop Entry]
Type=Application
Name=Viewer
Exec=%1 %f
MimeType=%2;
)"_L1;

constexpr auto viewerScript = R"(#!/bin/sh
echo "$1" >>%1
)"_L1;

/// It has brought an entry of its own to the desktop.
bool isInstalled()
{
    return qEnvironmentVariableIsSet("VEXAL_PROGRAM");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The processes whose command line or environment names the folder. Browsers write over their environment.
QList<pid_t> processesOf(const QString &folder)
{
    QList<pid_t> ids;
    const auto names = QDir(u"/proc"_s).entryList(QDir::Dirs);
    for (const QString &name : names) {
        const auto id = pid_t(name.toInt());
        const QString process = "/proc/"_L1 + name;
        const QByteArray told = contentOf(process + "/cmdline"_L1) + contentOf(process + "/environ"_L1);
        if (id > 0 && id != ::getpid() && told.contains(folder.toUtf8()))
            ids.append(id);
    }
    return ids;
}

void endProcessesOf(const QString &folder)
{
    const auto none = [&] {
        const auto ids = processesOf(folder);
        for (const pid_t id : ids)
            ::kill(id, SIGKILL);
        return ids.isEmpty();
    };
    if (!QTest::qWaitFor(none, patience))
        qWarning("Something of %s did not end.", qPrintable(folder));
}

} // namespace

QString vexalProgram()
{
    return qEnvironmentVariable("VEXAL_PROGRAM", QStringLiteral(VEXAL_PROGRAM));
}

Desk::Desk()
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    for (const auto &[variable, folder] : {std::pair{u"XDG_DATA_HOME"_s, u"data"_s},
                                           {u"XDG_CONFIG_HOME"_s, u"config"_s},
                                           {u"XDG_CACHE_HOME"_s, u"cache"_s},
                                           {u"XDG_STATE_HOME"_s, u"state"_s},
                                           {u"XDG_RUNTIME_DIR"_s, u"run"_s}}) {
        QDir(m_home.path()).mkpath(folder);
        m_environment.insert(variable, path(folder));
    }
    QFile::setPermissions(path(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (const char *variable : {"WAYLAND_DISPLAY", "SESSION_MANAGER", "XDG_CURRENT_DESKTOP", "XDG_SESSION_TYPE",
                                 "DESKTOP_SESSION", "BROWSER", "AT_SPI_BUS_ADDRESS", "NO_AT_BRIDGE", "QT_QPA_PLATFORM"})
        m_environment.remove(QString::fromLatin1(variable));
    m_environment.insert(u"HOME"_s, m_home.path());
    m_environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, m_bus.address());
    m_environment.insert(u"QT_LINUX_ACCESSIBILITY_ALWAYS_ON"_s, u"1"_s);
    m_environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    m_keyring = std::make_unique<KeyringDaemon>();
    startAccessibility();
    startDisplay();
    installPrograms();
}

Desk::~Desk()
{
    QDBusConnection::disconnectFromBus(u"accessibility"_s);
    for (QProcess *process : {&m_launcher, &m_display}) {
        process->terminate();
        process->waitForFinished(patience);
    }
    m_keyring.reset();
    endProcessesOf(m_home.path());
}

void Desk::startDisplay()
{
    QDir(m_home.path()).mkpath(u"frame"_s);
    m_display.setProcessEnvironment(m_environment);
    m_display.setStandardErrorFile(QProcess::nullDevice());
    // Its keys do not repeat: a busy machine may take long between a key's press and its release.
    m_display.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1600x1000x24"_s, u"-nolisten"_s,
                                u"tcp"_s, u"-noreset"_s, u"-r"_s, u"-br"_s, u"-fbdir"_s, path(u"frame"_s)});
    QByteArray number;
    while (!number.contains('\n')) {
        if (!m_display.waitForReadyRead(patience))
            qFatal("The display did not start.");
        number += m_display.readAllStandardOutput();
    }
    m_environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(number.trimmed()));
}

void Desk::startAccessibility()
{
    // Without a display to tell of itself on: one is enough to know it from the session bus.
    auto environment = m_environment;
    environment.remove(u"DISPLAY"_s);
    m_launcher.setProcessEnvironment(environment);
    m_launcher.setStandardErrorFile(QProcess::nullDevice());
    m_launcher.start(u"/usr/libexec/at-spi-bus-launcher"_s, {u"--launch-immediately"_s});
    const auto isThere = [] {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(u"org.a11y.Bus"_s).value();
    };
    if (!QTest::qWaitFor(isThere, patience))
        qFatal("The accessibility bus did not start.");
    const QDBusReply<QString> address = QDBusConnection::sessionBus().call(
        QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
    m_accessibility = QDBusConnection::connectToBus(address, u"accessibility"_s);
    if (!m_accessibility->isConnected())
        qFatal("There is no accessibility bus: %s", qPrintable(address.error().message()));
}

void Desk::installPrograms() const
{
    const QString browser = path(u"chromium"_s);
    write(u"chromium"_s, QString(browserScript).arg(path(u"browser"_s)));
    QFile::setPermissions(browser, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!isInstalled())
        write(u"data/applications/org.vexal.Vexal.desktop"_s, QString(vexalEntry).arg(vexalProgram()));
    write(u"data/applications/chromium.desktop"_s, QString(browserEntry).arg(browser));
    write(u"config/mimeapps.list"_s, defaults);
}

void Desk::clear()
{
    endProcessesOf(path(u"browser"_s));
    for (const auto &folder : {u"browser"_s, u"config/Vexal"_s, u"cache/Vexal"_s, u"Downloads"_s})
        QDir(path(folder)).removeRecursively();
    m_keyring->remove(deployment::applicationId.toString(), u"session"_s);
}

void Desk::logOpened(const QString &mimeType, const QString &log) const
{
    QFile::remove(log);
    write(u"viewer"_s, QString(viewerScript).arg(log));
    QFile::setPermissions(path(u"viewer"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    write(u"data/applications/viewer.desktop"_s, QString(viewerEntry).arg(path(u"viewer"_s), mimeType));
    write(u"config/mimeapps.list"_s, defaults + mimeType + "=viewer.desktop\n"_L1);
}

void Desk::trustPagesOf(int port) const
{
    write(u"browser/Default/Preferences"_s,
          uR"({"protocol_handler":{"allowed_origin_protocol_pairs":{"http://127.0.0.1:%1":{"vexal":true}}}})"_s.arg(
              port));
}

void Desk::write(const QString &name, const QString &text) const
{
    QFile file(path(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("%s was not written.", qPrintable(name));
}

QList<Accessible> Desk::programs() const
{
    return Accessible(*m_accessibility, u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s).children();
}

std::optional<Accessible> Desk::program(qint64 processId) const
{
    for (const Accessible &program : programs()) {
        if (m_accessibility->interface()->servicePid(program.busName()).value() == uint(processId))
            return program;
    }
    return std::nullopt;
}

std::optional<Accessible> Desk::program(const QString &name) const
{
    for (const Accessible &program : programs()) {
        if (program.name().contains(name, Qt::CaseInsensitive))
            return program;
    }
    return std::nullopt;
}

QByteArray Desk::pixels(const QRect &place) const
{
    return framePixels(path(u"frame/Xvfb_screen0"_s), place);
}

} // namespace vexal
