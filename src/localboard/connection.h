#pragma once

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <string>

namespace vexal::local {

/// How long a connection waits for its client, and how much it takes before it gives up.
struct Patience
{
    std::chrono::milliseconds idle{
        150'000}; ///< Between two requests. Clients hang up sooner, so none meets a closed door.
    std::chrono::milliseconds head{10'000};  ///< From the first byte of a request to the end of its header.
    std::chrono::milliseconds body{60'000};  ///< From the end of the header to the end of the body.
    std::chrono::milliseconds stall{10'000}; ///< Without a byte of the answer being taken.
    std::size_t headBytes = 16'384;
};

/// One client's connection. Takes a request's header whole before anybody reads from it, so that a client that
/// dribbles, floods or falls silent costs one thread a bounded time and nothing else.
class Connection : public httplib::Stream
{
public:
    using Clock = std::chrono::steady_clock;

    /// How the wait for a request ended.
    enum class Head { Whole, Gone, Late, TooLarge };

    /// Takes over \a socket and closes it in the end.
    Connection(int socket, const Patience &patience);
    ~Connection() override;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Waits until the header of the next request is there.
    Head awaitHead();

    /// The header has been read; \a bytes of body follow it.
    void expectBody(std::size_t bytes);

    /// Whether the body of the request has been read to its end: if not, what comes next is no request.
    bool bodyIsRead() const { return m_bodyLeft == 0; }

    /// Ends the conversation so that the last answer still arrives, also where the client was not done sending.
    void sayGoodbye();

    /// Lets no further request in; what is being answered is answered. May be called from any thread.
    void hangUp();

    /// Since when it waits for a request; Clock::time_point::max() while one is under way. May be called from any
    /// thread.
    Clock::time_point idleSince() const { return m_idleSince; }

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char *data, size_t size) override;
    ssize_t write(const char *data, size_t size) override;
    void get_remote_ip_and_port(std::string &ip, int &port) const override;
    void get_local_ip_and_port(std::string &ip, int &port) const override;
    socket_t socket() const override { return m_socket; }

private:
    bool await(short events, Clock::time_point deadline) const;
    ssize_t receive(char *data, std::size_t size, Clock::time_point deadline) const;

    const int m_socket;
    const Patience m_patience;
    std::string m_received;  ///< From the start of the request under way.
    std::size_t m_taken = 0; ///< How much of it has been read.
    std::size_t m_bodyLeft = 0;
    Clock::time_point m_deadline;
    std::atomic<Clock::time_point> m_idleSince;
};

} // namespace vexal::local
