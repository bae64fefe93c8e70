#pragma once

#include "scriptedserver.h"

#include <QTimer>

/// One connection of the scripted server: takes its requests one after the other and sends the answers.
class ScriptedConnection : public QObject
{
    Q_OBJECT

public:
    ScriptedConnection(ScriptedServer &server, QTcpSocket &socket, int number);

private:
    void read();
    std::optional<Received> takeRequest();
    void send();
    void sendHead();
    void sendUpTo(qsizetype bytes);
    void sendPiece();
    qsizetype end() const;
    void finish();
    void reset();

    ScriptedServer &m_server;
    QTcpSocket &m_socket;
    int m_number;
    QByteArray m_input;
    std::optional<Answer> m_answer; ///< The one that is on its way.
    bool m_headSent = false;
    qsizetype m_sent = 0; ///< Bytes of its body.
    QTimer m_trickle;
};
