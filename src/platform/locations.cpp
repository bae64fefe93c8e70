#include "locations.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vexal {

QString picturesFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/Vexal/img"_s;
}

} // namespace vexal
