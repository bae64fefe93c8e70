#pragma once

#include <QNetworkProxy>
#include <QUrl>

namespace vexal {

/// The proxy by which the person's system reaches the URL. This computer itself is reached without one.
QNetworkProxy systemProxy(const QUrl &url);

} // namespace vexal
