#include "connection.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include <fcntl.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

namespace vexal::local {

namespace {

constexpr std::string_view endOfHead = "\r\n\r\n";

/// How much of a refused body is still read so that the refusal arrives.
constexpr std::size_t farewellBytes = 16'000'000;
constexpr std::chrono::milliseconds farewell{2'000};

} // namespace

Connection::Connection(int socket, const Patience &patience)
    : m_socket(socket)
    , m_patience(patience)
    , m_idleSince(Clock::now())
{
    const int on = 1;
    ::setsockopt(m_socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    ::fcntl(m_socket, F_SETFD, FD_CLOEXEC); // a browser started by this process must not hold it open
}

Connection::~Connection()
{
    ::close(m_socket);
}

Connection::Head Connection::awaitHead()
{
    m_received.erase(0, m_taken);
    m_taken = 0;
    m_idleSince = Clock::now();
    auto deadline = Clock::now() + (m_received.empty() ? m_patience.idle : m_patience.head);
    while (m_received.find(endOfHead) == std::string::npos) {
        if (m_received.size() > m_patience.headBytes)
            return Head::TooLarge;
        std::array<char, 4096> piece;
        const auto size = receive(piece.data(), piece.size(), deadline);
        if (size <= 0)
            return size < 0 && !m_received.empty() ? Head::Late : Head::Gone;
        if (m_received.empty())
            deadline = Clock::now() + m_patience.head;
        m_received.append(piece.data(), std::size_t(size));
    }
    m_idleSince = Clock::time_point::max();
    m_bodyLeft = 0;
    m_deadline = Clock::now() + m_patience.head;
    return m_received.find(endOfHead) > m_patience.headBytes ? Head::TooLarge : Head::Whole;
}

void Connection::expectBody(std::size_t bytes)
{
    m_bodyLeft = bytes;
    m_deadline = Clock::now() + m_patience.body;
}

void Connection::sayGoodbye()
{
    ::shutdown(m_socket, SHUT_WR);
    // Closing with bytes unread would make the system throw the answer away on the client's side.
    const auto deadline = Clock::now() + farewell;
    std::array<char, 4096> piece;
    for (std::size_t left = farewellBytes; left > 0;) {
        const auto size = receive(piece.data(), std::min(piece.size(), left), deadline);
        if (size <= 0)
            return;
        left -= std::size_t(size);
    }
}

void Connection::hangUp()
{
    m_idleSince = Clock::time_point::max();
    ::shutdown(m_socket, SHUT_RD);
}

bool Connection::is_readable() const
{
    return m_taken < m_received.size() || await(POLLIN, m_deadline);
}

bool Connection::is_writable() const
{
    return await(POLLOUT, Clock::now() + m_patience.stall);
}

ssize_t Connection::read(char *data, size_t size)
{
    ssize_t got = 0;
    if (m_taken < m_received.size()) {
        got = ssize_t(m_received.copy(data, size, m_taken));
        m_taken += std::size_t(got);
    } else {
        got = receive(data, size, m_deadline);
    }
    if (got > 0)
        m_bodyLeft -= std::min(m_bodyLeft, std::size_t(got));
    return got;
}

ssize_t Connection::write(const char *data, size_t size)
{
    while (is_writable()) {
        const auto sent = ::send(m_socket, data, size, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent >= 0 || (errno != EAGAIN && errno != EINTR))
            return sent;
    }
    return -1;
}

void Connection::get_remote_ip_and_port(std::string &ip, int &port) const
{
    ip.clear(); // nobody asks: who speaks is known by the token
    port = -1;
}

void Connection::get_local_ip_and_port(std::string &ip, int &port) const
{
    get_remote_ip_and_port(ip, port);
}

bool Connection::await(short events, Clock::time_point deadline) const
{
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        pollfd wait{m_socket, events, 0};
        const int ready = ::poll(&wait, 1, int(std::max<std::int64_t>(left.count(), 0)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

/// The bytes received; 0 when the client hung up, below 0 when the deadline passed or the connection broke.
ssize_t Connection::receive(char *data, std::size_t size, Clock::time_point deadline) const
{
    while (await(POLLIN, deadline)) {
        const auto got = ::recv(m_socket, data, size, MSG_DONTWAIT);
        if (got >= 0 || (errno != EAGAIN && errno != EINTR))
            return got;
    }
    return -1;
}

} // namespace vexal::local
