#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace vexal {

/// A request as it goes out to one address.
struct Outgoing
{
    QUrl url = {};
    QByteArray method = {};
    std::optional<QByteArray> body = {};
    QByteArray contentType = {};
    QByteArray authorization = {};
    QByteArray entityTag = {};
    qint64 limit = 0;
    bool background = false;
    bool abroad = false; ///< A redirect has led it out of its origin: it carries nothing of the person's.
};

/// The most redirects that one request follows.
inline constexpr int mostRedirects = 10;

/// The status asks for the same somewhere else.
bool isRedirect(int status);

/// What is sent where `location` leads, as browsers do it: a POST becomes a GET unless it is asked to be repeated, what
/// has a body is repeated within its origin only, and the credential and the entity tag stay in their origin. Nothing
/// when the way is refused.
std::optional<Outgoing> redirected(const Outgoing &request, int status, const QByteArray &location);

} // namespace vexal
