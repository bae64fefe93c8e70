#include "locations.h"

#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace vexal {

QString picturesFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) + u"/Vexal/img"_s;
}

QString downloadsFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

} // namespace vexal
