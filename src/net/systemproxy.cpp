#include "systemproxy.h"

#include "address.h"

#include <QNetworkProxyFactory>

namespace vexal {

QNetworkProxy systemProxy(const QUrl &url)
{
    if (isLoopback(url))
        return QNetworkProxy(QNetworkProxy::NoProxy);
    return QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url)).value(0, QNetworkProxy::NoProxy);
}

} // namespace vexal
