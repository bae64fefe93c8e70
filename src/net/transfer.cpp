#include "transfer.h"

#include "session.h"
#include "systemproxy.h"
#include "useragent.h"

#include <QNetworkProxy>

#include <curl/curl.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace vexal {

namespace {

/// The connection broke, as against never having stood or having carried nonsense.
bool isBreak(int code)
{
    return code == CURLE_GOT_NOTHING || code == CURLE_RECV_ERROR || code == CURLE_SEND_ERROR ||
           code == CURLE_PARTIAL_FILE;
}

} // namespace

/// What libcurl tells of the transfer as it goes.
struct Transfer::Calls
{
    static size_t headLine(char *line, size_t, size_t size, void *transfer)
    {
        return static_cast<Transfer *>(transfer)->takeHeadLine(QByteArray(line, qsizetype(size))) ? size : 0;
    }

    static size_t body(char *bytes, size_t, size_t size, void *transfer)
    {
        return static_cast<Transfer *>(transfer)->takeBody(bytes, qsizetype(size)) ? size : CURL_WRITEFUNC_ERROR;
    }

    static int connected(void *transfer, char *, char *, int, int)
    {
        auto *self = static_cast<Transfer *>(transfer);
        self->m_idle.start();
        // Where a kept connection breaks, libcurl would try one after the other. Once more, and on a new one, is
        // enough.
        long opened = 0;
        curl_easy_getinfo(self->handle(), CURLINFO_NUM_CONNECTS, &opened);
        self->m_anew = std::exchange(self->m_goneOut, true) && opened == 0;
        return self->m_anew ? CURL_PREREQFUNC_ABORT : CURL_PREREQFUNC_OK;
    }

    static int progress(void *transfer, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent)
    {
        auto *self = static_cast<Transfer *>(transfer);
        if (std::exchange(self->m_sent, sent) != sent)
            self->m_idle.start();
        return 0;
    }
};

void Transfer::FreeHandle::operator()(void *handle) const
{
    curl_easy_cleanup(handle);
}

void Transfer::FreeLines::operator()(curl_slist *lines) const
{
    curl_slist_free_all(lines);
}

Transfer::Transfer(Session &session, const Outgoing &request, const Timeouts &timeouts, Done done, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_request(request)
    , m_done(std::move(done))
    , m_handle(curl_easy_init())
{
    m_idle.setSingleShot(true);
    m_idle.setInterval(timeouts.idle);
    m_head.setSingleShot(true);
    m_head.setInterval(timeouts.head);
    connect(&m_idle, &QTimer::timeout, this, [this] { finish(End::Failed); });
    connect(&m_head, &QTimer::timeout, this, [this] { finish(End::Failed); });
    prepare();
    prepareHead();
    prepareProxy();
    m_session.add(*this);
}

Transfer::~Transfer()
{
    m_session.remove(*this);
}

void Transfer::prepare()
{
    CURL *handle = m_handle.get();
    curl_easy_setopt(handle, CURLOPT_PRIVATE, this);
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    // A transfer that is given up while its host is looked up must not wait for the answer.
    curl_easy_setopt(handle, CURLOPT_QUICK_EXIT, 1L);
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(handle, CURLOPT_URL,
                     m_request.url.toEncoded(QUrl::RemoveFragment | QUrl::RemoveUserInfo).constData());
    curl_easy_setopt(handle, CURLOPT_PATH_AS_IS, 1L);
    if (const QByteArray authorities = qgetenv("SSL_CERT_FILE"); !authorities.isEmpty())
        curl_easy_setopt(handle, CURLOPT_CAINFO, authorities.constData());
    if (m_request.method != "GET") {
        const QByteArray &body = m_request.body.emplace(m_request.body.value_or(QByteArray("")));
        curl_easy_setopt(handle, CURLOPT_POST, 1L);
        curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, m_request.method.constData());
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(body.size()));
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, body.constData());
        // Only on a connection that stood before would the request be sent again if it broke.
        curl_easy_setopt(handle, CURLOPT_FRESH_CONNECT, 1L);
    }
    curl_easy_setopt(handle, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &Calls::headLine);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &Calls::body);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(handle, CURLOPT_PREREQFUNCTION, &Calls::connected);
    curl_easy_setopt(handle, CURLOPT_PREREQDATA, this);
    curl_easy_setopt(handle, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(handle, CURLOPT_XFERINFOFUNCTION, &Calls::progress);
    curl_easy_setopt(handle, CURLOPT_XFERINFODATA, this);
}

void Transfer::prepareHead()
{
    const auto say = [this](const QByteArray &line) {
        m_lines.reset(curl_slist_append(m_lines.release(), line.constData()));
    };
    say("User-Agent: " + userAgent());
    say("Accept-Encoding: gzip");
    say("Cache-Control: no-cache");
    // A name without a value takes away what libcurl would say on its own.
    say("Expect:");
    say(m_request.contentType.isEmpty() ? "Content-Type:" : "Content-Type: " + m_request.contentType);
    if (!m_request.authorization.isEmpty())
        say("Authorization: " + m_request.authorization);
    if (!m_request.entityTag.isEmpty())
        say("If-None-Match: " + m_request.entityTag);
    curl_easy_setopt(m_handle.get(), CURLOPT_HTTPHEADER, m_lines.get());
}

void Transfer::prepareProxy()
{
    const QNetworkProxy proxy = systemProxy(m_request.url);
    const bool isSocks = proxy.type() == QNetworkProxy::Socks5Proxy;
    QByteArray place;
    if (proxy.type() != QNetworkProxy::NoProxy)
        place =
            (isSocks ? "socks5h://" : "http://") + proxy.hostName().toUtf8() + ':' + QByteArray::number(proxy.port());
    CURL *handle = m_handle.get();
    curl_easy_setopt(handle, CURLOPT_PROXY, place.constData());
    curl_easy_setopt(handle, CURLOPT_NOPROXY, "");
    if (proxy.user().isEmpty())
        return;
    curl_easy_setopt(handle, CURLOPT_PROXYUSERNAME, proxy.user().toUtf8().constData());
    curl_easy_setopt(handle, CURLOPT_PROXYPASSWORD, proxy.password().toUtf8().constData());
}

void Transfer::begin()
{
    m_idle.start();
    m_head.start();
}

bool Transfer::takeHeadLine(const QByteArray &bytes)
{
    m_idle.start();
    m_headSize += bytes.size();
    if (m_headSize > limit::head)
        return false;
    const QByteArray line = bytes.trimmed();
    const qsizetype colon = line.indexOf(':');
    if (line.startsWith("HTTP/"))
        m_response = {};
    else if (colon > 0)
        m_response.headers.append({line.first(colon).trimmed(), line.sliced(colon + 1).trimmed()});
    if (!line.isEmpty())
        return true;
    long status = 0;
    curl_easy_getinfo(m_handle.get(), CURLINFO_RESPONSE_CODE, &status);
    m_response.status = int(status);
    // A head of the hundreds only announces the real one.
    if (status >= 200)
        m_head.stop();
    return true;
}

bool Transfer::takeBody(const char *bytes, qsizetype size)
{
    m_idle.start();
    if (m_response.body.size() + size > limitOf(m_response.status, m_request.limit)) {
        m_refusedAtLength = m_response.status >= 400;
        return false;
    }
    m_response.body.append(bytes, size);
    return true;
}

void Transfer::end(int code)
{
    if (std::exchange(m_anew, false))
        return beginAnew();
    if (m_refusedAtLength) {
        m_response.body.clear();
        return finish(End::Whole);
    }
    // A connection that ends within the head is no error to libcurl.
    const bool broke = code == CURLE_OK ? m_response.status == 0 : isBreak(code);
    if (code == CURLE_OK && !broke)
        return finish(End::Whole);
    finish(m_goneOut && broke ? End::Dropped : End::Failed);
}

void Transfer::beginAnew()
{
    curl_easy_setopt(m_handle.get(), CURLOPT_FRESH_CONNECT, 1L);
    m_session.remove(*this);
    m_session.add(*this);
}

void Transfer::finish(End end)
{
    m_idle.stop();
    m_head.stop();
    m_session.remove(*this);
    deleteLater();
    std::exchange(m_done, nullptr)(end, m_response);
}

} // namespace vexal
