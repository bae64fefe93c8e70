#pragma once

#include "connection.h"

#include <atomic>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace vexal::local {

/// How much an HttpServer takes on.
struct HttpBounds
{
    Patience patience = {};
    std::size_t connections = 256; ///< Served at once. A further one takes the place of the one idle longest.
    std::size_t bodyBytes = 8'000'000;
    std::size_t targetBytes = 2048; ///< Path and query.
};

/// httplib's server, made safe to leave running: connections of our own (Connection), a bound on everything that comes
/// in, and a JSON object with a sentence under "error" in every refusal.
class HttpServer : public httplib::Server
{
public:
    explicit HttpServer(HttpBounds bounds = {});
    ~HttpServer() override;
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Serves \a port (0: any) of \a host from now on, on threads of its own; false when the address cannot be had.
    /// Handlers must be in place. An HttpServer opens once. On a loopback address it answers requests that name this
    /// machine, by whichever of its loopback names, and no others.
    bool open(const std::string &host, int port);

    /// The port that is served; 0 before open().
    int port() const { return m_port; }

    /// How many connections there are now.
    std::size_t connections();

    /// Finishes the answers under way and lets every connection go.
    void close();

    /// The body of a refusal: {"error": sentence}.
    static std::string errorBody(std::string_view sentence);

private:
    bool process_and_close_socket(socket_t socket) override;
    bool answerOne(Connection &connection);
    HandlerResponse refuseUnread(const httplib::Request &request, httplib::Response &response) const;
    void dropIdlest();
    void hangUpAll();

    const HttpBounds m_bounds;
    int m_port = 0;
    bool m_onLoopback = false;
    std::thread m_listener;
    std::atomic<bool> m_closing = false;
    std::mutex m_mutex;
    std::set<Connection *> m_connections;
};

} // namespace vexal::local
