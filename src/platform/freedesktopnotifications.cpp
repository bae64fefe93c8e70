#include "freedesktopnotifications.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto service = "org.freedesktop.Notifications"_L1;
constexpr auto path = "/org/freedesktop/Notifications"_L1;
constexpr auto clicked = "default"_L1; // the action that a click on the notification itself asks for
constexpr int asTheDesktopLikes = -1;

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(service, path, service, method);
}

} // namespace

FreedesktopNotifications::FreedesktopNotifications(const QDBusConnection &bus, const QString &applicationId)
    : m_bus(bus)
    , m_application(applicationId)
{
    if (!m_bus.isConnected())
        return;
    m_bus.connect(service, path, service, u"ActionInvoked"_s, this, SLOT(actionInvoked(uint, QString)));
    m_bus.connect(service, path, service, u"ActivationToken"_s, this, SLOT(activationToken(uint, QString)));
    m_bus.connect(service, path, service, u"NotificationClosed"_s, this, SLOT(notificationClosed(uint, uint)));
}

// A click after the program's end would reach nobody.
FreedesktopNotifications::~FreedesktopNotifications()
{
    if (m_id != 0)
        close();
}

void FreedesktopNotifications::show(const QString &text, const QString &fileId)
{
    if (!m_bus.isConnected())
        return;
    m_next = Told{text, fileId};
    m_wanted = true;
    goOn();
}

void FreedesktopNotifications::withdraw()
{
    m_next.reset();
    m_wanted = false;
    goOn();
}

/// Does what is to be done next. One question at a time: only an answered one names the notification that the next one
/// is to replace.
void FreedesktopNotifications::goOn()
{
    if (m_asking)
        return;
    if (m_next && !m_readsMarkup)
        learnServer();
    else if (m_next)
        tell();
    else if (!m_wanted && m_id != 0)
        close();
}

void FreedesktopNotifications::learnServer()
{
    ask(callOf(u"GetCapabilities"_s), &FreedesktopNotifications::serverAnswered);
}

void FreedesktopNotifications::serverAnswered(const QDBusMessage &answer)
{
    if (answer.type() == QDBusMessage::ErrorMessage)
        m_next.reset();
    else
        m_readsMarkup = answer.arguments().value(0).toStringList().contains("body-markup"_L1);
}

void FreedesktopNotifications::tell()
{
    const Told told = *std::exchange(m_next, std::nullopt);
    m_fileId = told.fileId;
    auto call = callOf(u"Notify"_s);
    call << u"Vexal"_s << m_id << m_application << u"Vexal"_s
         << (*m_readsMarkup ? told.text.toHtmlEscaped() : told.text) << QStringList{clicked, u"Open"_s}
         << QVariantMap{{u"desktop-entry"_s, m_application}} << asTheDesktopLikes;
    ask(call, &FreedesktopNotifications::toldAnswered);
}

void FreedesktopNotifications::toldAnswered(const QDBusMessage &answer)
{
    m_id = answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0).toUInt() : 0;
}

void FreedesktopNotifications::close()
{
    auto call = callOf(u"CloseNotification"_s);
    call << std::exchange(m_id, 0);
    m_bus.send(call);
}

void FreedesktopNotifications::ask(const QDBusMessage &call,
                                   void (FreedesktopNotifications::*answered)(const QDBusMessage &))
{
    m_asking = true;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, answered] {
        answer->deleteLater();
        m_asking = false;
        (this->*answered)(answer->reply());
        goOn();
    });
}

void FreedesktopNotifications::actionInvoked(uint id, const QString &action)
{
    if (id == m_id && id != 0 && action == clicked)
        Q_EMIT opened(m_fileId);
}

// What lets a window come forward where windows may not do so by themselves.
void FreedesktopNotifications::activationToken(uint id, const QString &token)
{
    if (id == m_id && id != 0)
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
}

void FreedesktopNotifications::notificationClosed(uint id, uint)
{
    if (id == m_id)
        m_id = 0;
}

} // namespace vexal
