#pragma once

#include "decode.h"
#include "jsontext.h"

#include <simdjson.h>

#include <array>
#include <span>
#include <string_view>
#include <utility>

namespace vexal {

class RecordReader;

/// How one field of a record is read.
struct FieldReader
{
    std::string_view key;
    bool required;
    bool (*read)(RecordReader &reader, simdjson::ondemand::value &value, void *record);
};

template <typename T>
constexpr bool isOptional = false;
template <typename T>
constexpr bool isOptional<std::optional<T>> = true;

/// Reads a record from a JSON document. simdjson finds the tokens and leads through lists and objects. It validates
/// UTF-8 and the structure that is walked through, but neither what is skipped nor the tokens: that is done here.
/// Every read answers whether it succeeded. After the first failure error() says why, and nothing more may be read.
class RecordReader
{
public:
    template <Record R>
    bool readDocument(QByteArray document, R &record)
    {
        return readDocument(std::move(document), fieldReaders<R>, &record);
    }

    const DecodeError &error() const { return m_error; }

private:
    using Value = simdjson::ondemand::value;
    using Object = simdjson::ondemand::object;

    bool readDocument(QByteArray document, std::span<const FieldReader> fields, void *record);
    bool readObject(Object object, std::span<const FieldReader> fields, void *record);

    bool read(Value &value, QString &text);
    bool read(Value &value, qint64 &number);
    bool read(Value &value, double &number);
    bool read(Value &value, bool &truth);

    template <Record R>
    bool read(Value &value, R &record)
    {
        Object object;
        if (const auto error = value.get_object().get(object))
            return refuse(error, u"not an object");
        return readObject(object, fieldReaders<R>, &record);
    }

    template <typename T>
    bool read(Value &value, std::optional<T> &optional)
    {
        return isNull(value) || read(value, optional.emplace());
    }

    template <typename T>
    bool read(Value &value, QList<T> &list)
    {
        simdjson::ondemand::array array;
        if (const auto error = value.get_array().get(array))
            return refuse(error, u"not a list");
        for (auto element : array) {
            if (element.error())
                return refuse(element.error());
            if (!read(element.value_unsafe(), list.emplaceBack()))
                return within(QStringLiteral("[%1]").arg(list.size() - 1));
        }
        return true;
    }

    template <typename T>
    bool read(Value &value, QMap<QString, T> &map)
    {
        Object object;
        if (const auto error = value.get_object().get(object))
            return refuse(error, u"not an object");
        for (auto field : object) {
            QString key;
            if (field.error())
                return refuse(field.error());
            if (!readKey(field.value_unsafe(), key))
                return false;
            Value &mapped = field.value_unsafe().value();
            const bool first = !map.contains(key);
            if (!(first ? read(mapped, map[key]) : ignore(mapped)))
                return within(QStringLiteral("[\"%1\"]").arg(key));
        }
        return true;
    }

    bool readKey(simdjson::ondemand::field &field, QString &key);
    static bool isNull(Value &value);
    /// Checks what nobody wants, and moves past it.
    bool ignore(Value &value);

    /// Fails where we are.
    bool fail(QStringView reason);
    /// Fails with what simdjson says, or with \a mismatch where a value is well-formed but of another type.
    bool refuse(simdjson::error_code error, QStringView mismatch = {});
    /// Passes a failure on out of the field or element \a step.
    bool within(QString step);

    template <Record R, size_t index>
    static bool readField(RecordReader &reader, Value &value, void *record)
    {
        constexpr auto field = std::get<index>(fieldsOf(static_cast<const R *>(nullptr)));
        return reader.read(value, static_cast<R *>(record)->*field.member);
    }

    template <typename Owner, typename T>
    static constexpr FieldReader fieldReader(Field<Owner, T> field, decltype(FieldReader::read) read)
    {
        return {field.key, !isOptional<T>, read};
    }

    template <Record R>
    static constexpr auto fieldReaders = []<size_t... index>(std::index_sequence<index...>)
    {
        constexpr auto fields = fieldsOf(static_cast<const R *>(nullptr));
        return std::array{fieldReader(std::get<index>(fields), readField<R, index>)...};
    }
    (std::make_index_sequence<fieldCount<R>>());

    simdjson::ondemand::parser m_parser;
    Texts m_texts;
    DecodeError m_error;
};

} // namespace vexal
