#include "portallook.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settings = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto desktop = "org.gnome.desktop.interface"_L1;

bool is(const QVariantMap &space, const QString &key, const QVariant &value)
{
    const QVariant set = space.value(key);
    return set.metaType() == value.metaType() && set == value;
}

Look lookIn(const QDBusMessage &answer)
{
    QMap<QString, QVariantMap> spaces;
    if (answer.signature() == "a{sa{sv}}"_L1)
        answer.arguments().constFirst().value<QDBusArgument>() >> spaces;
    const QVariantMap general = spaces.value(appearance);
    const QVariantMap own = spaces.value(desktop);
    return {.dark = is(general, u"color-scheme"_s, 1U),
            .contrast = is(general, u"contrast"_s, 1U),
            .reducedMotion = is(general, u"reduced-motion"_s, 1U) || is(own, u"enable-animations"_s, false)};
}

} // namespace

PortalLook::PortalLook(const QDBusConnection &bus)
    : m_bus(bus)
    , m_portal(service, bus, QDBusServiceWatcher::WatchForRegistration)
{
    if (!m_bus.isConnected()) {
        m_known = true;
        return;
    }
    m_bus.connect(service, path, settings, u"SettingChanged"_s, this, SLOT(settingChanged(QString)));
    connect(&m_portal, &QDBusServiceWatcher::serviceRegistered, this, &PortalLook::ask);
    ask();
}

void PortalLook::ask()
{
    auto call = QDBusMessage::createMethodCall(service, path, settings, u"ReadAll"_s);
    call << QStringList{appearance, desktop};
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (!answer->isError())
            take(lookIn(answer->reply()));
        beKnown();
    });
}

void PortalLook::settingChanged(const QString &space)
{
    if (space == appearance || space == desktop)
        ask();
}

void PortalLook::beKnown()
{
    if (!std::exchange(m_known, true))
        Q_EMIT becameKnown();
}

void PortalLook::take(const Look &look)
{
    if (m_look == look)
        return;
    m_look = look;
    Q_EMIT changed();
}

} // namespace vexal
