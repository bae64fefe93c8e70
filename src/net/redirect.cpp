#include "redirect.h"

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

bool isWeb(const QUrl &url)
{
    return (url.scheme() == "https"_L1 || url.scheme() == "http"_L1) && !url.host().isEmpty();
}

int portOf(const QUrl &url)
{
    return url.port(url.scheme() == "https"_L1 ? 443 : 80);
}

bool sameOrigin(const QUrl &one, const QUrl &other)
{
    return one.scheme() == other.scheme() && one.host() == other.host() && portOf(one) == portOf(other);
}

bool becomesGet(int status, const QByteArray &method)
{
    if (status == 303)
        return method != "GET";
    return (status == 301 || status == 302) && method == "POST";
}

} // namespace

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

std::optional<Outgoing> redirected(const Outgoing &request, int status, const QByteArray &location)
{
    const QUrl reference = QUrl::fromEncoded(location);
    const QUrl target = request.url.resolved(reference);
    if (!reference.isValid() || !target.isValid() || !isWeb(target))
        return std::nullopt;
    if (request.url.scheme() == "https"_L1 && target.scheme() == "http"_L1)
        return std::nullopt;

    Outgoing next = request;
    next.url = target;
    if (becomesGet(status, request.method)) {
        next.method = "GET";
        next.body.reset();
        next.contentType.clear();
    }
    if (sameOrigin(request.url, target))
        return next;
    if (next.method != "GET")
        return std::nullopt;
    next.authorization.clear();
    next.entityTag.clear();
    next.abroad = true;
    return next;
}

} // namespace vexal
