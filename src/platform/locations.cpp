#include "locations.h"

#include <QDir>
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

// This Qt has no name for it yet. A folder that is not absolute counts as not given.
QString stateFolder()
{
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(given) ? given : QDir::homePath() + u"/.local/state"_s) + u"/Vexal"_s;
}

QString runtimeFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

} // namespace vexal
