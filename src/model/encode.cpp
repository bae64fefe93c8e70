#include "encode.h"

#include <charconv>
#include <cmath>

namespace vexal {

namespace {

/// Writes values one after the other, each complete.
class Writer
{
public:
    QByteArray written() && { return std::move(m_json); }

    void write(const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        m_json += '"';
        qsizetype start = 0;
        for (qsizetype at = 0; at < utf8.size(); ++at) {
            const char c = utf8[at];
            if (static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\')
                continue;
            m_json.append(utf8.constData() + start, at - start);
            escape(c);
            start = at + 1;
        }
        m_json.append(utf8.constData() + start, utf8.size() - start);
        m_json += '"';
    }

    void write(qint64 number) { m_json += QByteArray::number(number); }
    void write(bool truth) { m_json += truth ? "true" : "false"; }

    void write(double number)
    {
        if (!std::isfinite(number)) {
            m_json += "null";
            return;
        }
        // Without a format the shorter of 1700000000000 and 1.7e+12 is taken: a time should look like one.
        const double size = std::abs(number);
        const bool plain = size == 0 || (size >= 1e-5 && size < 1e17);
        char digits[32];
        char *const end = plain ? std::to_chars(digits, std::end(digits), number, std::chars_format::fixed).ptr
                                : std::to_chars(digits, std::end(digits), number).ptr;
        m_json.append(digits, end - digits);
    }

    template <typename T>
    void write(const QList<T> &list)
    {
        m_json += '[';
        const char *separator = "";
        for (const T &element : list) {
            m_json += std::exchange(separator, ",");
            write(element);
        }
        m_json += ']';
    }

    template <typename T>
    void write(const QMap<QString, T> &map)
    {
        m_json += '{';
        const char *separator = "";
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            m_json += std::exchange(separator, ",");
            write(entry.key());
            m_json += ':';
            write(entry.value());
        }
        m_json += '}';
    }

    template <Record R>
    void write(const R &record)
    {
        m_json += '{';
        const char *separator = "";
        forEachField(record, [&](const char *key, const auto &value) { writeField(separator, key, value); });
        m_json += '}';
    }

private:
    template <typename T>
    void writeField(const char *&separator, const char *key, const T &value)
    {
        m_json += std::exchange(separator, ",");
        m_json += '"';
        m_json += key;
        m_json += "\":";
        write(value);
    }

    template <typename T>
    void writeField(const char *&separator, const char *key, const std::optional<T> &value)
    {
        if (value)
            writeField(separator, key, *value);
    }

    void escape(char c)
    {
        constexpr std::string_view letters = "\"\\bfnrt";
        constexpr std::string_view meanings = "\"\\\b\f\n\r\t";
        m_json += '\\';
        if (const size_t simple = meanings.find(c); simple != meanings.npos)
            m_json += letters[simple];
        else
            m_json += "u00" + QByteArray(1, c).toHex();
    }

    QByteArray m_json;
};

} // namespace

template <Record R>
QByteArray encode(const R &record)
{
    Writer writer;
    writer.write(record);
    return std::move(writer).written();
}

#define VEXAL_ENCODE(R) template QByteArray encode<R>(const R &record);
VEXAL_EACH_RECORD(VEXAL_ENCODE)
#undef VEXAL_ENCODE

} // namespace vexal
