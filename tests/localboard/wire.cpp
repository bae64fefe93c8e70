#include "wire.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vexal {

Wire::Wire(int port)
    : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const timeval patience{10, 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
    ::setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(quint16(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(m_socket);
        m_socket = -1;
    }
}

Wire::~Wire()
{
    if (m_socket >= 0)
        ::close(m_socket);
}

bool Wire::send(const QByteArray &bytes)
{
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const auto now = ::send(m_socket, bytes.data() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (now <= 0)
            return false;
        sent += now;
    }
    return true;
}

QByteArray Wire::answer()
{
    qsizetype head = -1;
    while ((head = m_received.indexOf("\r\n\r\n")) < 0) {
        if (!receive())
            return std::exchange(m_received, {});
    }
    constexpr QByteArrayView key = "content-length:";
    const auto header = m_received.first(head + 2).toLower();
    const auto at = header.indexOf(key);
    const auto length =
        at < 0 ? 0 : header.mid(at + key.size(), header.indexOf("\r\n", at) - at - key.size()).trimmed().toLongLong();
    const auto size = head + 4 + length;
    while (m_received.size() < size) {
        if (!receive())
            return std::exchange(m_received, {});
    }
    const auto whole = m_received.first(size);
    m_received.remove(0, size);
    return whole;
}

bool Wire::isHungUp()
{
    char byte = 0;
    return m_received.isEmpty() && ::recv(m_socket, &byte, 1, 0) == 0;
}

int Wire::status(const QByteArray &answer)
{
    return answer.startsWith("HTTP/1.1 ") ? answer.mid(9, 3).toInt() : 0;
}

bool Wire::receive()
{
    char piece[65536];
    const auto got = ::recv(m_socket, piece, sizeof piece, 0);
    if (got > 0)
        m_received.append(piece, got);
    return got > 0;
}

} // namespace vexal
