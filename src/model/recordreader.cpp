#include "recordreader.h"

#include "jsonnumber.h"
#include "wellformed.h"

#include <cstring>

namespace vexal {

using namespace Qt::StringLiterals;

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// The characters of a scalar value, or of the bracket that opens another one.
std::string_view token(simdjson::ondemand::value &value)
{
    std::string_view token = value.raw_json_token();
    while (isBlank(token.back()))
        token.remove_suffix(1);
    return token;
}

/// All of a list or object as it is written, which is moved past.
template <typename Container>
simdjson::error_code rawJson(simdjson::simdjson_result<Container> result, std::string_view &json)
{
    Container container;
    if (const auto error = std::move(result).get(container))
        return error;
    return container.raw_json().get(json);
}

/// What stands between the quotes of a key. That it ends, simdjson has seen to.
std::string_view rawKey(const char *start)
{
    const char *end = start;
    while (*end != '"')
        end += *end == '\\' ? 2 : 1;
    return {start, end};
}

/// The first field whose key \a matches, tried from \a next on and then from the start; their number when none does.
template <typename Matches>
size_t indexOf(std::span<const FieldReader> fields, size_t next, Matches matches)
{
    for (size_t index = next; index < fields.size(); ++index) {
        if (matches(fields[index].key))
            return index;
    }
    for (size_t index = 0; index < next; ++index) {
        if (matches(fields[index].key))
            return index;
    }
    return fields.size();
}

QLatin1StringView latin1(std::string_view text)
{
    return QLatin1StringView(text.data(), qsizetype(text.size()));
}

} // namespace

bool RecordReader::readDocument(QByteArray document, std::span<const FieldReader> fields, void *record)
{
    using namespace simdjson;
    const qsizetype mark = document.startsWith("\xEF\xBB\xBF") ? 3 : 0;
    const size_t size = size_t(document.size() - mark);
    document.reserve(document.size() + qsizetype(SIMDJSON_PADDING));
    ondemand::document iterated;
    if (const auto error = m_parser.iterate(document.constData() + mark, size, size + SIMDJSON_PADDING).get(iterated))
        return refuse(error);
    Object object;
    if (const auto error = iterated.get_object().get(object))
        return refuse(error, u"not an object");
    if (!readObject(object, fields, record))
        return false;
    const bool atEnd = iterated.current_location().error() == OUT_OF_BOUNDS;
    return atEnd || fail(u"malformed: something follows the end");
}

bool RecordReader::readObject(Object object, std::span<const FieldReader> fields, void *record)
{
    quint32 seen = 0;
    size_t next = 0; // Where the next key will be, mostly: servers write them in a fixed order.
    for (auto each : object) {
        if (each.error())
            return refuse(each.error());
        simdjson::ondemand::field &field = each.value_unsafe();
        const char *const written = field.key().raw();
        size_t index = indexOf(fields, next, [written](std::string_view key) {
            return written[key.size()] == '"' && std::memcmp(written, key.data(), key.size()) == 0;
        });
        QString other;
        if (index == fields.size()) {
            if (!readKey(field, other))
                return false;
            index = indexOf(fields, 0, [&other](std::string_view key) { return other == latin1(key); });
        }
        const bool known = index < fields.size();
        const bool counts = known && !(seen >> index & 1);
        if (!(counts ? fields[index].read(*this, field.value(), record) : ignore(field.value())))
            return within(known ? latin1(fields[index].key) : other);
        if (counts) {
            seen |= 1u << index;
            next = index + 1;
        }
    }
    for (size_t index = 0; index < fields.size(); ++index) {
        if (fields[index].required && !(seen >> index & 1)) {
            fail(u"missing");
            return within(latin1(fields[index].key));
        }
    }
    return true;
}

bool RecordReader::readKey(simdjson::ondemand::field &field, QString &key)
{
    std::optional<QString> text = textOf(rawKey(field.key().raw()));
    if (!text)
        return fail(u"malformed: a key");
    key = std::move(*text);
    return true;
}

bool RecordReader::read(Value &value, QString &text)
{
    const std::string_view quoted = token(value);
    // Moves past the string. simdjson's own way of doing that takes it for a key when a colon follows.
    if (const auto error = value.get_raw_json_string().error())
        return refuse(error, u"not a string");
    std::optional<QString> read = m_texts.textOf(quoted.substr(1, quoted.size() - 2));
    if (!read)
        return fail(u"malformed: a string");
    text = std::move(*read);
    return true;
}

bool RecordReader::read(Value &value, qint64 &number)
{
    const std::optional<qint64> read = integerOf(token(value));
    number = read.value_or(0);
    return read || fail(u"not an integer of 64 bits");
}

bool RecordReader::read(Value &value, double &number)
{
    const std::optional<double> read = doubleOf(token(value));
    number = read.value_or(0);
    return read || fail(u"not a number of 64 bits");
}

bool RecordReader::read(Value &value, bool &truth)
{
    const std::string_view word = token(value);
    truth = word == "true";
    return truth || word == "false" || fail(u"not a boolean");
}

bool RecordReader::isNull(Value &value)
{
    return value.raw_json_token().front() == 'n' && token(value) == "null";
}

bool RecordReader::ignore(Value &value)
{
    std::string_view json = token(value);
    simdjson::error_code error = simdjson::SUCCESS;
    if (json == "{")
        error = rawJson(value.get_object(), json);
    else if (json == "[")
        error = rawJson(value.get_array(), json);
    else if (json.starts_with('"'))
        error = value.get_raw_json_string().error();
    if (error)
        return refuse(error);
    return isWellFormed(json) || fail(u"malformed");
}

bool RecordReader::fail(QStringView reason)
{
    m_error.reason = reason.toString();
    return false;
}

bool RecordReader::refuse(simdjson::error_code error, QStringView mismatch)
{
    if (error == simdjson::INCORRECT_TYPE)
        return fail(mismatch);
    return fail(u"malformed: "_s + QLatin1StringView(simdjson::error_message(error)));
}

bool RecordReader::within(QString step)
{
    if (!m_error.path.isEmpty() && !m_error.path.startsWith(u'['))
        step += u'.';
    m_error.path.prepend(step);
    return false;
}

} // namespace vexal
