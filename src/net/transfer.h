#pragma once

#include "redirect.h"
#include "request.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

struct curl_slist;

namespace vexal {

class Session;

/// How long the server may take.
struct Timeouts
{
    std::chrono::milliseconds idle = std::chrono::seconds(30); ///< Without a byte.
    std::chrono::milliseconds head = std::chrono::seconds(60); ///< Until its whole response head is there.
};

/// One request to one address and the response to it, redirects and codings as they are. The session outlives it.
class Transfer : public QObject
{
    Q_OBJECT

public:
    enum class End {
        Whole,   ///< The whole response has come.
        Dropped, ///< The connection went away after the request had gone out.
        Failed,  ///< Anything else.
    };
    using Done = std::function<void(End, const Response &)>;

    /// Joins the session. `done` is called once, unless the transfer is deleted before.
    Transfer(Session &session, const Outgoing &request, const Timeouts &timeouts, Done done, QObject *parent);
    ~Transfer() override;

    bool inBackground() const { return m_request.background; }
    void *handle() const { return m_handle.get(); }

    /// The session begins with it now.
    void begin();

    /// The session has ended it with the result `code` of libcurl.
    void end(int code);

private:
    struct FreeHandle
    {
        void operator()(void *handle) const;
    };
    struct FreeLines
    {
        void operator()(curl_slist *lines) const;
    };

    struct Calls;

    void prepare();
    void prepareHead();
    void prepareProxy();
    bool takeHeadLine(const QByteArray &bytes);
    bool takeBody(const char *bytes, qsizetype size);
    void beginAnew();
    void finish(End end);

    Session &m_session;
    Outgoing m_request;
    Done m_done;
    std::unique_ptr<void, FreeHandle> m_handle;
    std::unique_ptr<curl_slist, FreeLines> m_lines;
    Response m_response;
    QTimer m_idle;
    QTimer m_head;
    bool m_goneOut = false;
    bool m_anew = false;            ///< The kept connection had gone: a new one is to be made.
    bool m_refusedAtLength = false; ///< A refusal that says more than anybody reads.
    qint64 m_headSize = 0;          ///< Bytes of the response's head.
    qint64 m_sent = 0;              ///< Bytes of the request's body.
};

} // namespace vexal
