#include "scriptedconnection.h"

#include <QTcpSocket>

#include <algorithm>
#include <utility>

#include <sys/socket.h>

ScriptedConnection::ScriptedConnection(ScriptedServer &server, QTcpSocket &socket, int number)
    : QObject(&socket)
    , m_server(server)
    , m_socket(socket)
    , m_number(number)
{
    connect(&m_socket, &QTcpSocket::readyRead, this, &ScriptedConnection::read);
    connect(&m_trickle, &QTimer::timeout, this, &ScriptedConnection::sendPiece);
    QTimer::singleShot(0, this, &ScriptedConnection::read);
}

void ScriptedConnection::read()
{
    if (m_socket.isOpen())
        m_input += m_socket.readAll();
    if (m_answer)
        return;
    const auto request = takeRequest();
    if (!request)
        return;
    m_server.m_requests += *request;
    Q_EMIT m_server.received(*request);
    m_answer = m_server.answerTo(*request);
    m_sent = 0;
    m_headSent = false;
    send();
}

std::optional<Received> ScriptedConnection::takeRequest()
{
    const qsizetype headSize = m_input.indexOf("\r\n\r\n") + 4;
    if (headSize < 4)
        return std::nullopt;
    Received request;
    auto lines = m_input.first(headSize - 4).split('\n');
    const auto words = lines.takeFirst().trimmed().split(' ');
    request.method = words.value(0);
    request.target = words.value(1);
    for (const QByteArray &line : lines) {
        const qsizetype colon = line.indexOf(':');
        request.headers.append({line.first(colon), line.sliced(colon + 1).trimmed()});
    }
    const qsizetype size = headSize + request.header("Content-Length").value_or("0").toLongLong();
    if (m_input.size() < size)
        return std::nullopt;
    request.bytes = m_input.first(size);
    request.body = request.bytes.sliced(headSize);
    request.connection = m_number;
    m_input.remove(0, size);
    return request;
}

void ScriptedConnection::send()
{
    const Answer &answer = *m_answer;
    if (answer.m_silent)
        return;
    const Gate *gate = answer.m_gate;
    const bool held = gate && !gate->isOpen();
    if (held)
        connect(gate, &Gate::opened, this, &ScriptedConnection::send, Qt::SingleShotConnection);
    if (!held || answer.m_gateAfter)
        sendHead();
    if (held)
        sendUpTo(answer.m_gateAfter.value_or(0));
    else if (answer.m_piece > 0)
        m_trickle.start(answer.m_interval);
    else
        sendUpTo(end());
    if (!held && m_sent == end() && !m_trickle.isActive())
        finish();
}

void ScriptedConnection::sendHead()
{
    if (!std::exchange(m_headSent, true))
        m_socket.write(m_answer->head());
}

void ScriptedConnection::sendUpTo(qsizetype bytes)
{
    m_socket.write(m_answer->m_body.sliced(m_sent, bytes - m_sent));
    m_sent = bytes;
}

void ScriptedConnection::sendPiece()
{
    sendUpTo(std::min(m_sent + m_answer->m_piece, end()));
    if (m_sent < end())
        return;
    m_trickle.stop();
    finish();
}

qsizetype ScriptedConnection::end() const
{
    return m_answer->m_end.value_or(m_answer->m_body.size());
}

void ScriptedConnection::finish()
{
    const bool resets = m_answer->m_resets;
    const bool closes = m_answer->m_closes || m_answer->m_end;
    m_answer.reset();
    if (resets)
        reset();
    else if (closes)
        m_socket.disconnectFromHost();
    else
        read();
}

void ScriptedConnection::reset()
{
    m_socket.flush();
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(int(m_socket.socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    m_socket.abort();
}
