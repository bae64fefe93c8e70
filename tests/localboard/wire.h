#pragma once

#include <QByteArray>

namespace vexal {

/// A connection to a server on this machine on which a test says whatever it likes.
class Wire
{
public:
    explicit Wire(int port);
    ~Wire();
    Wire(const Wire &) = delete;
    Wire &operator=(const Wire &) = delete;

    bool isConnected() const { return m_socket >= 0; }

    /// Whether the server took all of it.
    bool send(const QByteArray &bytes);

    /// The next answer: header and, as long as the header says, body. What there is when the server hangs up first, or
    /// says nothing for 10 s.
    QByteArray answer();

    /// Waits, at most 10 s, for the server to hang up without another byte.
    bool isHungUp();

    /// The status of an answer; 0 when it is none.
    static int status(const QByteArray &answer);

private:
    bool receive();

    int m_socket = -1;
    QByteArray m_received;
};

} // namespace vexal
