#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QSslConfiguration;
class QTcpServer;
class QTcpSocket;
QT_END_NAMESPACE

/// A request as it came over the wire.
struct Received
{
    using Header = std::pair<QByteArray, QByteArray>;

    QByteArray bytes; ///< The whole of it.
    QByteArray method;
    QByteArray target; ///< As it stands in the request line, query included.
    QList<Header> headers;
    QByteArray body;
    int connection = 0; ///< Counts the connections of the server from 1.

    /// The value under the name, however its letters are written; nothing when it was not sent.
    std::optional<QByteArray> header(const QByteArray &name) const;
    QJsonObject json() const;
};

/// Holds answers back until it is opened. It must outlive the server's use of it.
class Gate : public QObject
{
    Q_OBJECT

public:
    bool isOpen() const { return m_open; }
    void open();

Q_SIGNALS:
    void opened();

private:
    bool m_open = false;
};

/// What an answer says: bytes as they are, or JSON with its content type.
struct AnswerBody
{
    AnswerBody() = default;
    AnswerBody(const char *text)
        : bytes(text)
    {
    }
    AnswerBody(const QByteArray &raw)
        : bytes(raw)
    {
    }
    AnswerBody(const QJsonObject &object);

    QByteArray bytes;
    bool json = false;
};

/// One answer of the server: a response in good order, and what is wrong with it.
class Answer
{
public:
    using Headers = QList<std::pair<QByteArray, QByteArray>>;

    explicit Answer(int status = 200, const AnswerBody &body = {}, const Headers &headers = {});

    /// These bytes stand in for a response; then the connection closes.
    static Answer raw(const QByteArray &bytes);
    /// The connection closes without a byte.
    static Answer closed();
    /// The connection stays, and nothing comes.
    static Answer never();

    Answer &&gzipped() &&; ///< The body is sent in the gzip format.
    Answer &&
    gzippedAndCut(qsizetype by) &&; ///< So it is, but its last bytes are missing, and the length says nothing of it.
    Answer &&chunked(qsizetype size) &&;             ///< The body comes in chunks of so many bytes.
    Answer &&withoutLength() &&;                     ///< The body ends with the connection.
    Answer &&cutAfter(qsizetype bytes) &&;           ///< After so many bytes of the body the connection closes.
    Answer &&resetAfter(qsizetype bytes) &&;         ///< The same, but it is torn down.
    Answer &&closing() &&;                           ///< The connection closes after the answer, unannounced.
    Answer &&heldBy(Gate &gate) &&;                  ///< Nothing is sent before the gate opens.
    Answer &&heldBy(Gate &gate, qsizetype after) &&; ///< The head and so many bytes of the body are sent before.
    /// The body comes in pieces of so many bytes, one after each interval.
    Answer &&trickled(qsizetype piece, std::chrono::milliseconds interval) &&;

private:
    friend class ScriptedConnection;

    /// The head as it goes out, with the length of the body if that is to be told.
    QByteArray head() const;

    QByteArray m_head; ///< Without its last, empty line; empty when there is none.
    QByteArray m_body;
    bool m_tellsLength = true;
    bool m_silent = false;          ///< Nothing ever comes.
    bool m_closes = false;          ///< The connection closes at the end.
    bool m_resets = false;          ///< It does so by being torn down.
    std::optional<qsizetype> m_end; ///< So many bytes of the body are all that is sent.
    QPointer<Gate> m_gate;
    std::optional<qsizetype> m_gateAfter; ///< Bytes of the body before the gate; without it the head waits, too.
    qsizetype m_piece = 0;
    std::chrono::milliseconds m_interval{0};
};

/// What the server says to one kind of request: its answers in turn, the last of them for ever.
class Script
{
public:
    using Reaction = std::function<Answer(const Received &)>;

    Script &answer(Answer answer);
    Script &answer(int status, const AnswerBody &body = {}, const Answer::Headers &headers = {});
    Script &react(Reaction reaction);

    /// How many requests it has answered.
    int asked() const { return m_asked; }

private:
    friend class ScriptedServer;

    Answer next(const Received &request);

    QList<Reaction> m_reactions;
    int m_asked = 0;
};

/// An HTTP/1.1 server on a real socket of this machine, in the thread of its maker, that keeps every request byte for
/// byte and answers as it was told to:
///
///     ScriptedServer server;
///     server.on("GET", "/api/state").answer(200, board, {{"Etag", "\"1\""}}).answer(304);
class ScriptedServer : public QObject
{
    Q_OBJECT

public:
    ScriptedServer();
    /// A server over TLS.
    explicit ScriptedServer(const QSslConfiguration &tls);
    ~ScriptedServer() override;

    QUrl url() const;
    quint16 port() const { return m_port; }

    /// Begins a new script for the method and the target, or the path of the target without its query. What no script
    /// is there for gets a 404 that says so.
    Script &on(const QByteArray &method, const QByteArray &target);

    /// Every request so far, or those of one method and target (or path), in the order in which they had come in whole.
    const QList<Received> &requests() const { return m_requests; }
    QList<Received> requests(const QByteArray &method, const QByteArray &target) const;
    void forgetRequests() { m_requests.clear(); }

    int connections() const { return m_connections; }          ///< That were ever made.
    int openConnections() const { return int(m_open.size()); } ///< That stand now.

    /// Refuses connections and ends those that stand, until it is up again at the same place.
    void goDown();
    void comeUp();

Q_SIGNALS:
    void received(const Received &request);

private:
    friend class ScriptedConnection;

    void listen();
    void accept();
    Answer answerTo(const Received &request);

    std::unique_ptr<QTcpServer> m_server;
    quint16 m_port = 0;
    bool m_secure = false;
    std::map<std::pair<QByteArray, QByteArray>, Script> m_scripts;
    QList<Received> m_requests;
    QList<QTcpSocket *> m_open;
    int m_connections = 0;
};
