#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

namespace vexal::bench {

/// Stands between a client and a server of this machine, and counts the bytes that go by.
class Relay : public QObject
{
public:
    explicit Relay(quint16 serverPort)
        : m_serverPort(serverPort)
    {
        connect(&m_door, &QTcpServer::newConnection, this, [this] { accept(); });
        m_door.listen(QHostAddress::LocalHost);
    }

    QUrl url() const { return QUrl(QStringLiteral("http://127.0.0.1:%1").arg(m_door.serverPort())); }

    qint64 sent() const { return m_sent; }         ///< By clients.
    qint64 received() const { return m_received; } ///< By clients.
    void forget() { m_sent = m_received = 0; }

private:
    void accept()
    {
        QTcpSocket *client = m_door.nextPendingConnection();
        auto *server = new QTcpSocket(client);
        server->connectToHost(QHostAddress::LocalHost, m_serverPort);
        pass(*client, *server, m_sent);
        pass(*server, *client, m_received);
        connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        connect(server, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    }

    void pass(QTcpSocket &from, QTcpSocket &to, qint64 &count)
    {
        connect(&from, &QTcpSocket::readyRead, &to, [&from, &to, &count] {
            const QByteArray bytes = from.readAll();
            count += bytes.size();
            to.write(bytes);
        });
    }

    QTcpServer m_door;
    quint16 m_serverPort;
    qint64 m_sent = 0;
    qint64 m_received = 0;
};

} // namespace vexal::bench
