#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <algorithm>
#include <optional>

namespace vexal {

/// The most that an answer may hold, in bytes.
namespace limit {

inline constexpr qint64 json = 64LL * 1024 * 1024;
inline constexpr qint64 pdf = 256LL * 1024 * 1024;
inline constexpr qint64 picture = pdf;
inline constexpr qint64 head = 256LL * 1024;
inline constexpr qint64 refusal = 1024LL * 1024; ///< A longer one says nothing.

} // namespace limit

/// How much of a body counts, with that status, where an answer may hold `limit` bytes.
inline qint64 limitOf(int status, qint64 limit)
{
    return status >= 400 ? std::min(limit, limit::refusal) : limit;
}

/// One request to the board server.
struct Request
{
    QString path = {}; ///< Below the base URL, with ids as they are: "api/files/" + id.
    QByteArray method = "GET";
    std::optional<QJsonObject> json = {};
    std::optional<QByteArray> raw = {};      ///< Outranks `json`.
    std::optional<QString> contentType = {}; ///< Of `raw`; "application/octet-stream" when there is none.
    std::optional<QString> entityTag = {};   ///< Of what is held already.
    qint64 limit = limit::json;              ///< A larger answer counts as lost.
    bool background = false;                 ///< Lets others go first, as pictures do.
};

/// A whole answer with a status below 400.
struct Response
{
    using Header = std::pair<QByteArray, QByteArray>;

    int status = 0;
    QByteArray body = {};
    QList<Header> headers = {};

    /// What was asked for is what the entity tag stands for: there is no body.
    bool unchanged() const { return status == 304; }

    /// The value of the header, however its name is written; nothing when it was not sent.
    std::optional<QString> header(QByteArrayView name) const;
    std::optional<QString> entityTag() const { return header("Etag"); }
};

} // namespace vexal
