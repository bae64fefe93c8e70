#include "useragent.h"

#include "deployment.h"

namespace vexal {

QByteArray userAgent(QStringView version)
{
    return "Vexal-Mac/" + (version.isEmpty() ? QByteArray("1.0") : version.toUtf8());
}

QByteArray userAgent()
{
    return userAgent(deployment::version);
}

} // namespace vexal
