#include "scriptedserver.h"

#include "gzip.h"
#include "scriptedconnection.h"

#include <QJsonDocument>
#include <QSslConfiguration>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QByteArray pathOf(const QByteArray &target)
{
    return target.first(target.indexOf('?') < 0 ? target.size() : target.indexOf('?'));
}

QByteArray inChunks(const QByteArray &body, qsizetype size)
{
    QByteArray chunks;
    for (qsizetype at = 0; at < body.size(); at += size) {
        const QByteArray piece = body.mid(at, size);
        chunks += QByteArray::number(piece.size(), 16) + "\r\n" + piece + "\r\n";
    }
    return chunks + "0\r\n\r\n";
}

} // namespace

std::optional<QByteArray> Received::header(const QByteArray &name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&name](const Header &header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? std::nullopt : std::optional(found->second);
}

QJsonObject Received::json() const
{
    return QJsonDocument::fromJson(body).object();
}

void Gate::open()
{
    m_open = true;
    Q_EMIT opened();
}

AnswerBody::AnswerBody(const QJsonObject &object)
    : bytes(QJsonDocument(object).toJson(QJsonDocument::Compact))
    , json(true)
{
}

Answer::Answer(int status, const AnswerBody &body, const Headers &headers)
    : m_head("HTTP/1.1 " + QByteArray::number(status) + " Scripted\r\n")
    , m_body(body.bytes)
    , m_tellsLength(status != 304 && status != 204)
{
    if (body.json)
        m_head += "Content-Type: application/json\r\n";
    for (const auto &[name, value] : headers) {
        m_head += name + ": " + value + "\r\n";
        m_tellsLength = m_tellsLength && name.compare("Content-Length", Qt::CaseInsensitive) != 0;
    }
}

Answer Answer::raw(const QByteArray &bytes)
{
    Answer answer;
    answer.m_head.clear();
    answer.m_body = bytes;
    answer.m_closes = true;
    return answer;
}

Answer Answer::closed()
{
    return raw({});
}

Answer Answer::never()
{
    Answer answer;
    answer.m_silent = true;
    return answer;
}

Answer &&Answer::gzipped() &&
{
    return std::move(*this).gzippedAndCut(0);
}

Answer &&Answer::gzippedAndCut(qsizetype by) &&
{
    m_head += "Content-Encoding: gzip\r\n";
    m_body = gzip(m_body);
    m_body.chop(by);
    return std::move(*this);
}

Answer &&Answer::chunked(qsizetype size) &&
{
    m_head += "Transfer-Encoding: chunked\r\n";
    m_body = inChunks(m_body, size);
    m_tellsLength = false;
    return std::move(*this);
}

Answer &&Answer::withoutLength() &&
{
    m_tellsLength = false;
    m_closes = true;
    return std::move(*this);
}

Answer &&Answer::cutAfter(qsizetype bytes) &&
{
    m_end = bytes;
    return std::move(*this);
}

Answer &&Answer::resetAfter(qsizetype bytes) &&
{
    m_end = bytes;
    m_resets = true;
    return std::move(*this);
}

Answer &&Answer::closing() &&
{
    m_closes = true;
    return std::move(*this);
}

Answer &&Answer::heldBy(Gate &gate) &&
{
    m_gate = &gate;
    return std::move(*this);
}

Answer &&Answer::heldBy(Gate &gate, qsizetype after) &&
{
    m_gate = &gate;
    m_gateAfter = after;
    return std::move(*this);
}

Answer &&Answer::trickled(qsizetype piece, std::chrono::milliseconds interval) &&
{
    m_piece = piece;
    m_interval = interval;
    return std::move(*this);
}

QByteArray Answer::head() const
{
    if (m_head.isEmpty())
        return {};
    const QByteArray length = "Content-Length: " + QByteArray::number(m_body.size()) + "\r\n";
    return m_head + (m_tellsLength ? length : QByteArray()) + "\r\n";
}

Script &Script::answer(Answer answer)
{
    return react([answer = std::move(answer)](const Received &) { return answer; });
}

Script &Script::answer(int status, const AnswerBody &body, const Answer::Headers &headers)
{
    return answer(Answer(status, body, headers));
}

Script &Script::react(Reaction reaction)
{
    m_reactions += std::move(reaction);
    return *this;
}

Answer Script::next(const Received &request)
{
    const qsizetype turn = std::min<qsizetype>(m_asked++, m_reactions.size() - 1);
    return turn < 0 ? Answer::never() : m_reactions[turn](request);
}

ScriptedServer::ScriptedServer()
    : m_server(std::make_unique<QTcpServer>())
{
    listen();
}

ScriptedServer::ScriptedServer(const QSslConfiguration &tls)
    : m_secure(true)
{
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    m_server = std::move(server);
    listen();
}

ScriptedServer::~ScriptedServer()
{
    goDown();
}

QUrl ScriptedServer::url() const
{
    return QUrl(u"%1://127.0.0.1:%2"_s.arg(m_secure ? "https"_L1 : "http"_L1).arg(m_port));
}

Script &ScriptedServer::on(const QByteArray &method, const QByteArray &target)
{
    Script &script = m_scripts[{method, target}];
    script = Script();
    return script;
}

QList<Received> ScriptedServer::requests(const QByteArray &method, const QByteArray &target) const
{
    QList<Received> found;
    std::copy_if(m_requests.begin(), m_requests.end(), std::back_inserter(found), [&](const Received &request) {
        return request.method == method && (request.target == target || pathOf(request.target) == target);
    });
    return found;
}

void ScriptedServer::goDown()
{
    m_server->close();
    for (QTcpSocket *socket : std::exchange(m_open, {})) {
        socket->disconnect(this);
        socket->abort();
        socket->deleteLater();
    }
}

void ScriptedServer::comeUp()
{
    listen();
}

void ScriptedServer::listen()
{
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &ScriptedServer::accept,
            Qt::UniqueConnection);
    if (!m_server->listen(QHostAddress::LocalHost, m_port))
        qFatal("The scripted server has no place to listen at.");
    m_port = m_server->serverPort();
}

void ScriptedServer::accept()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        m_open += socket;
        new ScriptedConnection(*this, *socket, ++m_connections);
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_open.removeOne(socket);
            socket->deleteLater();
        });
    }
}

Answer ScriptedServer::answerTo(const Received &request)
{
    for (const QByteArray &target : {request.target, pathOf(request.target)}) {
        const auto script = m_scripts.find({request.method, target});
        if (script != m_scripts.end())
            return script->second.next(request);
    }
    const QString words = "Nothing is scripted for "_L1 + QString::fromLatin1(request.method + ' ' + request.target);
    return Answer(404, QJsonObject{{u"error"_s, words}});
}
