#pragma once

#include "board.h"
#include "decode.h"

#include <QByteArray>
#include <QJsonObject>

#include <httplib.h>

namespace vexal {

/// What a board answered.
struct Reply
{
    int status = 0; ///< 0: nothing came.
    QByteArray body;
    QByteArray type;
    QByteArray tag;
    QByteArray location;

    QJsonObject json() const;

    /// The sentence under "error".
    QString error() const;

    /// The record that the body is; the test fails by a null dereference where it is none, so check the status first.
    template <Record R>
    R as() const
    {
        return *decode<R>(body);
    }
};

/// Somebody who talks to a board over HTTP, on one connection that stays open.
class Visitor
{
public:
    /// With \a token, a session's; without one, a stranger.
    explicit Visitor(int port, const QString &token = {});

    Reply get(const QString &path, const QByteArray &heldTag = {});
    Reply post(const QString &path, const QByteArray &body = {}, const char *type = "application/json");
    Reply post(const QString &path, const QJsonObject &body);
    Reply put(const QString &path, const QByteArray &body, const char *type);

    /// Signs in by the sign-in page as \a email, and speaks from then on as they do. False when that fails.
    bool signIn(const QString &email);

    /// The board as this visitor sees it now.
    BoardState board();

    /// The file \a id as it is now.
    FileDetail file(const QString &id);

private:
    Reply reply(const httplib::Result &result) const;

    httplib::Client m_client;
    httplib::Headers m_headers;
};

} // namespace vexal
