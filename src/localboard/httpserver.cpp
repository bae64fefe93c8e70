#include "httpserver.h"

#include "connectionthreads.h"
#include "loopback.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include <sys/socket.h>

namespace vexal::local {

namespace {

constexpr int waitingConnections = 128;

std::string_view sentenceFor(int status)
{
    switch (status) {
    case 400:
        return "That request made no sense.";
    case 404:
        return "There is nothing here.";
    case 408:
        return "That request took too long to arrive.";
    case 411:
        return "The request has to say how long it is.";
    case 413:
        return "That is too much at once.";
    case 414:
        return "That address is too long.";
    case 415:
        return "The board takes plain bodies only, neither packed nor in parts.";
    case 421:
        return "This board answers to this computer's own name only.";
    case 431:
        return "That request has too many headers.";
    default:
        return "Something went wrong on the board. Try again.";
    }
}

/// The length that the request announces; nothing when it announces none that can be relied on.
std::optional<std::size_t> announcedLength(const httplib::Request &request)
{
    const auto text = request.get_header_value("Content-Length");
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), length);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    const bool once = request.get_header_value_count("Content-Length") == 1;
    return whole && once && !request.has_header("Transfer-Encoding") ? std::optional(length) : std::nullopt;
}

/// Whether the request is for this machine by one of its own names. A page from elsewhere can have its name lead here,
/// and would then be let read what this server answers; but it cannot have its browser send another name than its own.
bool namesThisMachine(const httplib::Request &request)
{
    return request.get_header_value_count("Host") == 1 && isLoopback(hostIn(request.get_header_value("Host")));
}

/// Leaves of a request what this server does: whole answers, as they are.
void simplify(httplib::Request &request)
{
    request.ranges.clear();
    request.headers.erase("Range");
    request.headers.erase("Accept-Encoding");
    // Without a length httplib would read until the client hangs up.
    if (!request.has_header("Content-Length"))
        request.headers.emplace("Content-Length", "0");
}

} // namespace

HttpServer::HttpServer(HttpBounds bounds)
    : m_bounds(bounds)
{
    set_tcp_nodelay(true);
    set_payload_max_length(m_bounds.bodyBytes);
    set_keep_alive_timeout(std::chrono::duration_cast<std::chrono::seconds>(m_bounds.patience.idle).count());
    set_keep_alive_max_count(100'000);       // only said, never counted
    set_socket_options([](socket_t socket) { // never SO_REUSEPORT: two boards must not share an address unknowingly
        const int on = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    });
    new_task_queue = [this] {
        return new ConnectionThreads(
            m_bounds.connections, [this] { dropIdlest(); }, [this] { hangUpAll(); });
    };
    set_pre_routing_handler([this](const auto &request, auto &response) { return refuseUnread(request, response); });
    set_exception_handler([](const auto &, auto &response, const std::exception_ptr &) { response.status = 500; });
    set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty())
            response.set_content(errorBody(sentenceFor(response.status)), "application/json");
    });
}

HttpServer::~HttpServer()
{
    close();
}

bool HttpServer::open(const std::string &host, int port)
{
    if (port != 0)
        m_port = bind_to_port(host, port) ? port : 0;
    else
        m_port = std::max(bind_to_any_port(host), 0);
    m_onLoopback = isLoopback(host);
    if (m_port == 0)
        return false;
    ::listen(svr_sock_, waitingConnections); // httplib lets five wait; the sixth would lose a second
    m_listener = std::thread([this] { listen_after_bind(); });
    while (!is_running())
        std::this_thread::yield();
    return true;
}

std::size_t HttpServer::connections()
{
    const std::lock_guard lock(m_mutex);
    return m_connections.size();
}

void HttpServer::close()
{
    if (!m_listener.joinable())
        return;
    stop();
    m_listener.join();
}

std::string HttpServer::errorBody(std::string_view sentence)
{
    std::string body = "{\"error\":\"";
    for (const char c : sentence) {
        if (c == '"' || c == '\\')
            body += '\\';
        body += c;
    }
    return body + "\"}";
}

bool HttpServer::process_and_close_socket(socket_t socket)
{
    Connection connection(socket, m_bounds.patience);
    {
        const std::lock_guard lock(m_mutex);
        m_connections.insert(&connection);
    }
    using Head = Connection::Head;
    auto head = Head::Whole;
    while (!m_closing) {
        head = connection.awaitHead();
        if (head != Head::Whole || !answerOne(connection))
            break;
    }
    if (head == Head::Late || head == Head::TooLarge) {
        const int status = head == Head::Late ? 408 : 431;
        const auto body = errorBody(sentenceFor(status));
        connection.write_format("HTTP/1.1 %d Refused\r\nConnection: close\r\nContent-Type: application/json\r\n"
                                "Content-Length: %zu\r\n\r\n%s",
                                status, body.size(), body.c_str());
    }
    {
        const std::lock_guard lock(m_mutex);
        m_connections.erase(&connection);
    }
    if (head != Head::Gone)
        connection.sayGoodbye();
    return true;
}

/// Answers the request whose header is there; false when no further one can follow on this connection.
bool HttpServer::answerOne(Connection &connection)
{
    bool last = false;
    bool understood = false;
    const auto headRead = [&](httplib::Request &request) {
        understood = true;
        simplify(request);
        connection.expectBody(announcedLength(request).value_or(SIZE_MAX));
    };
    return process_request(connection, m_closing, last, headRead) && understood && !last && connection.bodyIsRead();
}

/// Refuses, before its body is read, what this server does not take.
HttpServer::HandlerResponse HttpServer::refuseUnread(const httplib::Request &request, httplib::Response &response) const
{
    const auto length = announcedLength(request);
    if (m_onLoopback && !namesThisMachine(request))
        response.status = 421;
    else if (request.target.size() > m_bounds.targetBytes)
        response.status = 414;
    else if (request.has_header("Transfer-Encoding"))
        response.status = 411;
    else if (!length)
        response.status = 400;
    else if (*length > m_bounds.bodyBytes)
        response.status = 413;
    else if (request.has_header("Content-Encoding") || request.is_multipart_form_data())
        response.status = 415;
    return response.status == -1 ? HandlerResponse::Unhandled : HandlerResponse::Handled;
}

void HttpServer::dropIdlest()
{
    const std::lock_guard lock(m_mutex);
    const auto idlest = std::min_element(m_connections.begin(), m_connections.end(),
                                         [](auto *a, auto *b) { return a->idleSince() < b->idleSince(); });
    if (idlest != m_connections.end() && (*idlest)->idleSince() != Connection::Clock::time_point::max())
        (*idlest)->hangUp();
}

void HttpServer::hangUpAll()
{
    m_closing = true;
    const std::lock_guard lock(m_mutex);
    for (auto *connection : m_connections)
        connection->hangUp();
}

} // namespace vexal::local
