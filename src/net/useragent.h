#pragma once

#include <QByteArray>
#include <QStringView>

namespace vexal {

/// What the client calls itself: "Vexal-Mac/" and its version, "1.0" when it has none.
QByteArray userAgent(QStringView version);

/// The same for this very build.
QByteArray userAgent();

} // namespace vexal
