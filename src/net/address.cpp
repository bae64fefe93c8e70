#include "address.h"

#include <QHostAddress>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace vexal {

std::optional<QUrl> parsedUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.isRelative() ? std::optional(url) : std::nullopt;
}

std::optional<QUrl> appended(const QUrl &base, const QString &path)
{
    // Joined in the encoded form: an id that looks encoded must not be taken for it.
    QString encoded = base.path(QUrl::FullyEncoded);
    while (encoded.endsWith(u'/'))
        encoded.chop(1);
    const QStringList components = path.split(u'/');
    for (const QString &component : components) {
        if (component == "."_L1 || component == ".."_L1)
            return std::nullopt;
        encoded += u'/' + QString::fromLatin1(QUrl::toPercentEncoding(component, "!$&'()*+,;=:@"));
    }
    QUrl url = base;
    url.setPath(encoded, QUrl::StrictMode);
    url.setQuery(QString());
    url.setFragment(QString());
    return url;
}

bool isLoopback(const QUrl &url)
{
    const QString host = url.host();
    return host == "localhost"_L1 || host.endsWith(".localhost"_L1) || QHostAddress(host).isLoopback();
}

} // namespace vexal
