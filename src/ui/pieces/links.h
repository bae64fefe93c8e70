#pragma once

#include <QString>

namespace vexal {

/// Opens a link from outside with whatever the desktop opens such links with. What is no URL, or would reach into this
/// computer's own files, is not opened.
void openLink(const QString &link);

} // namespace vexal
