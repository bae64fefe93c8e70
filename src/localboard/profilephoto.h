#pragma once

#include <QByteArray>

namespace vexal::local {

/// Whether \a jpeg is a JPEG that can be shown, of at most 4096 by 4096 pixels.
bool isPhoto(const QByteArray &jpeg);

} // namespace vexal::local
