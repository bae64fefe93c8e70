#include "unitylauncherbadge.h"

#include <QDBusMessage>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

UnityLauncherBadge::UnityLauncherBadge(const QDBusConnection &bus, const QString &applicationId)
    : m_bus(bus)
    , m_entry("application://"_L1 + applicationId + ".desktop"_L1)
{
}

void UnityLauncherBadge::show(int count)
{
    if (std::exchange(m_shown, count) == count || !m_bus.isConnected())
        return;
    auto update =
        QDBusMessage::createSignal(u"/org/vexal/LauncherEntry"_s, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    update << m_entry << QVariantMap{{u"count"_s, qint64(count)}, {u"count-visible"_s, count > 0}};
    m_bus.send(update);
}

} // namespace vexal
