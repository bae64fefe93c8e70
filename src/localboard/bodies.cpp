#include "bodies.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

using namespace Qt::StringLiterals;

namespace vexal::local {

namespace {

Refusal missing(QLatin1StringView key)
{
    return refused(u"The board was not told: %1."_s.arg(key));
}

Refusal strange(QLatin1StringView key)
{
    return refused(u"The board can't make sense of: %1."_s.arg(key));
}

bool has(const QJsonObject &body, QLatin1StringView key)
{
    const auto value = body.value(key);
    return !value.isUndefined() && !value.isNull();
}

bool toText(const QJsonValue &value, QString &text)
{
    text = value.toString();
    return value.isString();
}

bool toNumber(const QJsonValue &value, double &number)
{
    number = value.toDouble();
    return value.isDouble();
}

bool toInteger(const QJsonValue &value, qint64 &number)
{
    constexpr double largest = 1e9; // no file has as many pages
    const double real = value.toDouble(NAN);
    const bool isWhole = std::abs(real) <= largest && std::trunc(real) == real;
    number = isWhole ? qint64(real) : 0;
    return isWhole;
}

bool toTruth(const QJsonValue &value, bool &truth)
{
    truth = value.toBool();
    return value.isBool();
}

/// Reads what may be absent; false when it is there and is not what \a convert takes.
template <typename T>
bool readOptional(const QJsonObject &body, QLatin1StringView key, std::optional<T> &field,
                  bool (*convert)(const QJsonValue &, T &))
{
    return !has(body, key) || convert(body.value(key), field.emplace());
}

} // namespace

Outcome<QJsonObject> objectIn(const QByteArray &bytes)
{
    const auto document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return refused(u"The board takes a JSON object."_s);
    return document.object();
}

Outcome<QString> textIn(const QJsonObject &body, QLatin1StringView key)
{
    QString text;
    if (!has(body, key))
        return missing(key);
    if (!toText(body.value(key), text))
        return strange(key);
    return text;
}

Outcome<QList<QString>> textsIn(const QJsonObject &body, QLatin1StringView key)
{
    if (!has(body, key))
        return missing(key);
    if (!body.value(key).isArray())
        return strange(key);
    QList<QString> texts;
    for (const auto &each : body.value(key).toArray()) {
        if (!toText(each, texts.emplaceBack()))
            return strange(key);
    }
    return texts;
}

Outcome<NewNote> newNoteIn(const QJsonObject &body)
{
    const auto file = textIn(body, "file_id"_L1);
    const auto text = textIn(body, "text"_L1);
    if (!file || !text)
        return !file ? file.refusal() : text.refusal();
    NewNote note{.file_id = *file, .text = *text};
    if (!readOptional(body, "page"_L1, note.page, toInteger))
        return strange("page"_L1);
    if (!readOptional(body, "x"_L1, note.x, toNumber) || !readOptional(body, "y"_L1, note.y, toNumber))
        return strange("x, y"_L1);
    if (!readOptional(body, "finding_id"_L1, note.finding_id, toText))
        return strange("finding_id"_L1);
    return note;
}

Outcome<NoteChange> noteChangeIn(const QJsonObject &body)
{
    NoteChange change;
    std::optional<bool> deleted;
    if (!readOptional(body, "text"_L1, change.text, toText))
        return strange("text"_L1);
    if (!readOptional(body, "resolved"_L1, change.resolved, toTruth))
        return strange("resolved"_L1);
    if (!readOptional(body, "deleted"_L1, deleted, toTruth))
        return strange("deleted"_L1);
    change.deleted = deleted == true;
    if (!change.text && !change.resolved && !change.deleted)
        return missing("text, resolved or deleted"_L1);
    return change;
}

} // namespace vexal::local
