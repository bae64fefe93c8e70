#include "api.h"

#include "address.h"
#include "deployment.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTimer>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

const Failure computerOffline = Failure::offline(u"This Mac is offline. Vexal will catch up when it's back."_s);
const Failure outOfReach = Failure::offline(u"Can't reach the Vexal server right now. Trying again…"_s);
const Failure noWebServer = Failure::offline(u"Can't reach the Vexal server right now."_s);
const QString refusal = u"The server didn't take that. Try again in a moment."_s;

bool isWritable(const QJsonValue &value)
{
    if (value.isDouble())
        return std::isfinite(value.toDouble());
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        return std::all_of(array.begin(), array.end(), isWritable);
    }
    const QJsonObject object = value.toObject();
    return std::all_of(object.begin(), object.end(), isWritable);
}

QString reasonIn(const QByteArray &body)
{
    const QJsonValue error = QJsonDocument::fromJson(body).object().value("error"_L1);
    return error.toString().trimmed().isEmpty() ? refusal : error.toString();
}

} // namespace

API::API(Preferences &preferences, const CredentialStore &credentials, const NetworkPresence &network,
         const Timeouts &timeouts, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_credentials(credentials)
    , m_presence(network)
    , m_timeouts(timeouts)
{
}

API::~API()
{
    // They speak to the session, which goes before this object's children do.
    qDeleteAll(findChildren<Exchange *>(Qt::FindDirectChildrenOnly));
}

QUrl API::base() const
{
    const auto preferred = parsedUrl(m_preferences.value(preference::serverURL).value_or(QString()));
    // People are known by their token alone.
    return preferred.value_or(QUrl(deployment::serverURL.toString())).adjusted(QUrl::RemoveUserInfo);
}

void API::send(const Request &request, QObject *context, Done done)
{
    const auto out = outgoing(request);
    if (!out) {
        QTimer::singleShot(0, context, [done = std::move(done), failure = out.failure()] { done(failure); });
        return;
    }
    const auto tell = [this, done = std::move(done)](const Outcome &outcome) { done(classified(outcome)); };
    new Exchange(m_session, *out, m_timeouts, context, tell, this);
}

Result<Outgoing> API::outgoing(const Request &request) const
{
    const auto url = appended(base(), request.path);
    if (!url)
        return outOfReach;
    if (url->scheme() != "https"_L1 && url->scheme() != "http"_L1)
        return noWebServer;
    Outgoing out{.url = *url, .method = request.method, .limit = request.limit, .background = request.background};
    if (const QString token = m_credentials.token(); !token.isEmpty())
        out.authorization = "Bearer " + token.toUtf8();
    if (request.json) {
        if (!isWritable(*request.json))
            return Failure::other();
        out.body = QJsonDocument(*request.json).toJson(QJsonDocument::Compact);
        out.contentType = "application/json";
    }
    if (request.raw) {
        out.body = request.raw;
        out.contentType = request.contentType.value_or(u"application/octet-stream"_s).toUtf8();
    }
    out.entityTag = request.entityTag.value_or(QString()).toLatin1();
    return out;
}

Result<Response> API::classified(const Outcome &outcome) const
{
    if (outcome.end != Transfer::End::Whole) {
        const bool alone = !isLoopback(outcome.url) && !m_presence.connected();
        return alone || outcome.end == Transfer::End::Dropped ? computerOffline : outOfReach;
    }
    // Another origin was not shown the credential, and has not refused it.
    if (outcome.response.status == 401 && !outcome.abroad)
        return Failure::signedOut();
    if (outcome.response.status >= 400)
        return Failure::server(reasonIn(outcome.response.body));
    return outcome.response;
}

} // namespace vexal
