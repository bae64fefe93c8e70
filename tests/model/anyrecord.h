#pragma once

#include "board.h"

#include <QStringList>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace vexal {

/// Makes up records of every type: each optional field there or not, texts and numbers odd ones by preference. The same
/// seed makes up the same records.
class AnyRecord
{
public:
    explicit AnyRecord(quint64 seed)
        : m_random(seed)
    {
    }

    template <typename T>
    T make()
    {
        T value{};
        fill(value);
        return value;
    }

    /// Another value than \a value.
    template <typename T>
    T otherThan(const T &value)
    {
        for (;;) {
            T other = make<T>();
            if (other != value)
                return other;
        }
    }

private:
    int below(int bound) { return int(m_random() % quint64(bound)); }

    void fill(bool &truth) { truth = below(2) == 0; }

    void fill(qint64 &number)
    {
        constexpr qint64 least = std::numeric_limits<qint64>::min();
        constexpr qint64 largest = std::numeric_limits<qint64>::max();
        constexpr qint64 odd[] = {0, 1, -1, 7, least, largest, (qint64(1) << 53) + 1, 1'717'200'000'000};
        const int choice = below(int(std::size(odd)) + 2);
        number = choice < int(std::size(odd)) ? odd[choice] : std::bit_cast<qint64>(m_random());
    }

    void fill(double &number)
    {
        using Limits = std::numeric_limits<double>;
        constexpr double odd[] = {
            0.0,  -0.0, 1.0,  -1.5,   0.1,    1.0 / 3,          1e-5,          9.999e-6,
            1e17, 1e21, 1e23, 1e-310, 0x1p53, 1717200000000.25, 1717200000123, 2.2250738585072011e-308};
        constexpr double ends[] = {Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(),
                                   -Limits::denorm_min()};
        const int choice = below(4);
        if (choice == 0)
            number = ends[below(int(std::size(ends)))];
        else if (choice == 1)
            number = odd[below(int(std::size(odd)))];
        else
            fillWithAnyBits(number);
    }

    void fillWithAnyBits(double &number)
    {
        do
            number = std::bit_cast<double>(m_random());
        while (!std::isfinite(number));
    }

    void fill(QString &text)
    {
        for (int pieces = below(4); pieces > 0; --pieces)
            text += m_pieces[below(int(m_pieces.size()))];
    }

    template <typename T>
    void fill(std::optional<T> &optional)
    {
        if (below(3) > 0)
            fill(optional.emplace());
    }

    template <typename T>
    void fill(QList<T> &list)
    {
        for (int count = below(4); count > 0; --count)
            list.append(make<T>());
    }

    template <typename T>
    void fill(QMap<QString, T> &map)
    {
        for (int count = below(4); count > 0; --count)
            map.insert(make<QString>(), make<T>());
    }

    template <Record R>
    void fill(R &record)
    {
        forEachField(record, [this](const char *, auto &value) { fill(value); });
    }

    std::mt19937_64 m_random;
    QStringList m_pieces{
        QStringLiteral("plain"),
        QStringLiteral("The Lighthouse Keeper, 1000-piece puzzle, 3rd proof"),
        QStringLiteral("Grünwald & Söhne"),
        QStringLiteral("\U0001F3E0"),
        QStringLiteral("\"quoted\" \\ and / more"),
        QStringLiteral("\b\f\n\r\t\x01\x1F\x7F"),
        QStringLiteral("\u2028\u2029"),
        QStringLiteral("\uFEFF"),
        QStringLiteral("\uFFFD\uFFFE\uFFFF\U0010FFFF"),
        QStringLiteral("\\u0041"),
        QStringLiteral("null"),
        QString(1, QChar(u'\0')),
        QString(300, QChar(u'x')),
    };
};

} // namespace vexal
