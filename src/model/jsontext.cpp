#include "jsontext.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <numeric>

namespace vexal {

namespace {

quint64 eightBytes(const char *at)
{
    quint64 bytes;
    std::memcpy(&bytes, at, sizeof bytes);
    return bytes;
}

/// Whether eight characters are ASCII and none a backslash; it may say no for others too.
bool arePlain(quint64 eight)
{
    constexpr quint64 ones = 0x0101010101010101;
    constexpr quint64 highBits = ones * 0x80;
    const quint64 zeroAtBackslash = eight ^ (ones * '\\');
    return ((eight | (zeroAtBackslash - ones)) & highBits) == 0;
}

/// Whether each character stands for itself and is ASCII; it may say no for others too.
bool isPlain(std::string_view raw)
{
    if (raw.size() < 8)
        return std::ranges::none_of(raw, [](char c) { return c < 0 || c == '\\'; });
    const char *const last = raw.data() + raw.size() - 8;
    for (const char *at = raw.data(); at < last; at += 8) {
        if (!arePlain(eightBytes(at)))
            return false;
    }
    return arePlain(eightBytes(last));
}

QString fromUtf8(std::string_view utf8)
{
    // QString takes a byte-order mark at the start for no part of the text; in a JSON string it is one.
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    return utf8.starts_with(mark) ? QChar(QChar::ByteOrderMark) + text : text;
}

/// Takes the four digits of an escape like \u20AC off the front of \a rest.
std::optional<QChar> hexadecimal(std::string_view &rest)
{
    if (rest.size() < 4)
        return {};
    quint16 unit = 0;
    const char *const end = rest.data() + 4;
    if (std::from_chars(rest.data(), end, unit, 16).ptr != end)
        return {};
    rest.remove_prefix(4);
    return QChar(unit);
}

/// Takes what follows a backslash off the front of \a rest.
std::optional<QChar> escaped(std::string_view &rest)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::u16string_view meanings = u"\"\\/\b\f\n\r\t";
    if (rest.empty())
        return {};
    const char letter = rest.front();
    rest.remove_prefix(1);
    if (letter == 'u')
        return hexadecimal(rest);
    const size_t index = letters.find(letter);
    return index == letters.npos ? std::nullopt : std::optional(QChar(meanings[index]));
}

std::optional<QString> unescaped(std::string_view raw)
{
    QString text;
    for (size_t backslash = 0; (backslash = raw.find('\\')) != raw.npos;) {
        text += fromUtf8(raw.substr(0, backslash));
        raw.remove_prefix(backslash + 1);
        const std::optional<QChar> unit = escaped(raw);
        if (!unit)
            return {};
        text += *unit;
    }
    text += fromUtf8(raw);
    return text.isValidUtf16() ? std::optional(text) : std::nullopt;
}

/// A number below 256 out of the size and both ends of \a raw.
size_t slot(std::string_view raw)
{
    quint64 ends = raw.size();
    if (raw.size() >= 8)
        ends += eightBytes(raw.data()) + 31 * eightBytes(raw.data() + raw.size() - 8);
    else
        ends += std::accumulate(raw.begin(), raw.end(), quint64(0),
                                [](quint64 all, char c) { return 31 * all + quint64(c); });
    return ends * 0x9E3779B97F4A7C15 >> 56;
}

} // namespace

std::optional<QString> textOf(std::string_view raw)
{
    if (isPlain(raw))
        return QString::fromLatin1(raw.data(), qsizetype(raw.size()));
    if (raw.find('\\') == raw.npos)
        return fromUtf8(raw);
    return unescaped(raw);
}

std::optional<QString> Texts::textOf(std::string_view raw)
{
    constexpr size_t longest = 24; // What is longer hardly comes twice.
    if (raw.empty() || raw.size() > longest)
        return vexal::textOf(raw);
    Known &known = m_known[slot(raw)];
    if (known.raw == raw)
        return known.text;
    std::optional<QString> text = vexal::textOf(raw);
    if (text)
        known = {raw, *text};
    return text;
}

} // namespace vexal
