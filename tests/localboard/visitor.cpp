#include "visitor.h"

#include <QJsonDocument>
#include <QUrl>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace vexal {

QJsonObject Reply::json() const
{
    return QJsonDocument::fromJson(body).object();
}

QString Reply::error() const
{
    return json().value("error"_L1).toString();
}

Visitor::Visitor(int port, const QString &token)
    : m_client("127.0.0.1", port)
{
    m_client.set_keep_alive(true);
    m_client.set_tcp_nodelay(true);
    m_client.set_read_timeout(20);
    m_client.set_url_encode(false);
    if (!token.isEmpty())
        m_headers.emplace("Authorization", "Bearer " + token.toStdString());
}

Reply Visitor::get(const QString &path, const QByteArray &heldTag)
{
    auto headers = m_headers;
    if (!heldTag.isEmpty())
        headers.emplace("If-None-Match", heldTag.toStdString());
    return reply(m_client.Get(path.toStdString(), headers));
}

Reply Visitor::post(const QString &path, const QByteArray &body, const char *type)
{
    return reply(m_client.Post(path.toStdString(), m_headers, body.toStdString(), type));
}

Reply Visitor::post(const QString &path, const QJsonObject &body)
{
    return post(path, QJsonDocument(body).toJson(QJsonDocument::Compact));
}

Reply Visitor::put(const QString &path, const QByteArray &body, const char *type)
{
    return reply(m_client.Put(path.toStdString(), m_headers, body.toStdString(), type));
}

bool Visitor::signIn(const QString &email)
{
    const auto chosen = post(u"/signin"_s, "state=s&email=" + email.toUtf8(), "application/x-www-form-urlencoded");
    const auto code = QUrlQuery(QUrl(QString::fromUtf8(chosen.location))).queryItemValue(u"code"_s);
    const auto answer = post(u"/api/login/exchange"_s, QJsonObject{{u"code"_s, code}, {u"device"_s, u"a test"_s}});
    if (answer.status != 200)
        return false;
    m_headers = {{"Authorization", "Bearer " + answer.as<SignInAnswer>().token.toStdString()}};
    return true;
}

BoardState Visitor::board()
{
    return get(u"/api/state"_s).as<BoardState>();
}

FileDetail Visitor::file(const QString &id)
{
    return get(u"/api/files/"_s + id).as<FileDetail>();
}

Reply Visitor::reply(const httplib::Result &result) const
{
    if (!result)
        return {};
    const auto header = [&](const char *key) { return QByteArray::fromStdString(result->get_header_value(key)); };
    return {result->status, QByteArray::fromStdString(result->body), header("Content-Type"), header("ETag"),
            header("Location")};
}

} // namespace vexal
