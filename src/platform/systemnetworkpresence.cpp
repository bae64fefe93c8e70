#include "systemnetworkpresence.h"

#include <QNetworkInformation>
#include <QNetworkInterface>

#include <algorithm>

namespace vexal {

namespace {

bool carriesTraffic(const QNetworkInterface &interface)
{
    const auto flags = interface.flags();
    return flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack) && !interface.addressEntries().isEmpty();
}

} // namespace

SystemNetworkPresence::SystemNetworkPresence()
{
    QNetworkInformation::loadBackendByName(u"networkmanager");
}

bool SystemNetworkPresence::connected() const
{
    const QNetworkInformation *information = QNetworkInformation::instance();
    const auto reachability = information ? information->reachability() : QNetworkInformation::Reachability::Unknown;
    if (reachability != QNetworkInformation::Reachability::Unknown)
        return reachability != QNetworkInformation::Reachability::Disconnected;
    const auto interfaces = QNetworkInterface::allInterfaces();
    return std::any_of(interfaces.begin(), interfaces.end(), carriesTraffic);
}

} // namespace vexal
