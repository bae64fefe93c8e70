#include "exchange.h"

#include "inflate.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

/// The body in the clear; nothing when it is not what its coding says, or larger than `limit`.
std::optional<QByteArray> unpacked(const Response &response, qint64 limit)
{
    const QString coding = response.header("Content-Encoding").value_or(QString()).toLower();
    const bool hasNone = response.unchanged() || response.status == 204;
    if (coding.isEmpty() || coding == "identity"_L1 || hasNone || response.body.isEmpty())
        return response.body;
    return coding == "gzip"_L1 || coding == "x-gzip"_L1 ? inflated(response.body, limit) : std::nullopt;
}

} // namespace

Exchange::Exchange(Session &session, const Outgoing &request, const Timeouts &timeouts, QObject *context, Done done,
                   QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_request(request)
    , m_timeouts(timeouts)
    , m_context(context)
    , m_done(std::move(done))
{
    connect(context, &QObject::destroyed, this, [this] { delete this; });
    send();
}

void Exchange::send()
{
    new Transfer(
        m_session, m_request, m_timeouts, [this](Transfer::End end, const Response &response) { take(end, response); },
        this);
}

void Exchange::take(Transfer::End end, const Response &response)
{
    if (end != Transfer::End::Whole)
        return tell(end);
    const auto location = response.header("Location");
    if (isRedirect(response.status) && location) {
        const auto next = redirected(m_request, response.status, location->toLatin1());
        if (!next || ++m_redirects > mostRedirects)
            return tell(Transfer::End::Failed);
        m_request = *next;
        return send();
    }
    auto body = unpacked(response, limitOf(response.status, m_request.limit));
    // A refusal is one, whatever its body is.
    if (!body && response.status >= 400)
        body.emplace();
    if (!body)
        return tell(Transfer::End::Failed);
    tell(end, {.status = response.status, .body = std::move(*body), .headers = response.headers});
}

void Exchange::tell(Transfer::End end, const Response &response)
{
    // From here on whoever asked may go without taking this along.
    m_context->disconnect(this);
    deleteLater();
    std::exchange(m_done, nullptr)({end, m_request.url, response, m_request.abroad});
}

} // namespace vexal
