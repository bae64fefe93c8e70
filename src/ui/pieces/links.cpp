#include "links.h"

#include <QDesktopServices>
#include <QUrl>

namespace vexal {

void openLink(const QString &link)
{
    const QUrl url(link, QUrl::StrictMode);
    if (url.isValid() && !url.isRelative() && !url.isLocalFile())
        QDesktopServices::openUrl(url);
}

} // namespace vexal
