#include "jsonnumber.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace vexal {

namespace {

/// A number taken apart: digits * 10^(exponent - fraction).
struct Numeral
{
    bool negative = false;
    quint64 digits = 0;  ///< All digits before the exponent as one number; wrong when there are more than 19.
    qint64 count = 0;    ///< How many those are.
    qint64 fraction = 0; ///< How many of them stand behind the point.
    qint64 exponent = 0;

    qint64 power() const { return exponent - fraction; }
};

/// Takes characters off the front of a number.
class Scan
{
public:
    explicit Scan(std::string_view token)
        : m_at(token.data())
        , m_end(m_at + token.size())
    {
    }

    bool atEnd() const { return m_at == m_end; }

    bool take(char wanted)
    {
        if (atEnd() || *m_at != wanted)
            return false;
        ++m_at;
        return true;
    }

    /// Takes a run of digits, each handed to \a use; answers how many there were.
    template <typename Use>
    qint64 digits(Use use)
    {
        const char *const start = m_at;
        for (; m_at != m_end && *m_at >= '0' && *m_at <= '9'; ++m_at)
            use(*m_at - '0');
        return m_at - start;
    }

private:
    const char *m_at;
    const char *m_end;
};

/// Far beyond every exponent that matters, and safe to add to.
constexpr qint64 hugeExponent = qint64(1) << 48;

bool readExponent(Scan &scan, qint64 &exponent)
{
    const bool negative = scan.take('-');
    if (!negative)
        scan.take('+');
    if (scan.digits([&](int digit) { exponent = std::min(10 * exponent + digit, hugeExponent); }) == 0)
        return false;
    if (negative)
        exponent = -exponent;
    return true;
}

std::optional<Numeral> numeralOf(std::string_view token)
{
    Scan scan(token);
    Numeral numeral;
    const auto use = [&](int digit) { numeral.digits = 10 * numeral.digits + quint64(digit); };
    numeral.negative = scan.take('-');
    const bool leadingZero = scan.take('0');
    const qint64 whole = qint64(leadingZero) + scan.digits(use);
    if (whole == 0 || (leadingZero && whole > 1))
        return {};
    if (scan.take('.')) {
        numeral.fraction = scan.digits(use);
        if (numeral.fraction == 0)
            return {};
    }
    numeral.count = whole + numeral.fraction;
    if ((scan.take('e') || scan.take('E')) && !readExponent(scan, numeral.exponent))
        return {};
    if (!scan.atEnd())
        return {};
    return numeral;
}

constexpr int digitsOf64Bits = 19; ///< So many digits always fit into a quint64.

/// The integer of \a size and sign, if it fits.
std::optional<qint64> withSign(quint64 size, bool negative)
{
    constexpr quint64 largest = std::numeric_limits<qint64>::max();
    if (size > largest + (negative ? 1 : 0))
        return {};
    return qint64(negative ? 0 - size : size);
}

/// The digits of \a token before its exponent, without point and leading zeros.
std::string significantDigits(std::string_view token)
{
    std::string digits;
    for (const char c : token.substr(0, token.find_first_of("eE"))) {
        if (c >= '0' && c <= '9' && (c != '0' || !digits.empty()))
            digits += c;
    }
    return digits;
}

/// The slow way, for a number with a point or an exponent: all that counts is that nothing is left behind the point.
std::optional<qint64> wholeNumber(std::string_view token, const Numeral &numeral)
{
    std::string digits = significantDigits(token);
    if (digits.empty())
        return 0;
    const size_t size = digits.find_last_not_of('0') + 1;
    const qint64 power = numeral.power() + qint64(digits.size() - size);
    if (power < 0 || qint64(size) + power > digitsOf64Bits)
        return {};
    digits.resize(size);
    digits.append(size_t(power), '0');
    quint64 value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return withSign(value, numeral.negative);
}

/// The powers of ten that a double holds exactly.
constexpr std::array powersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// The quick way: one exact integer by one exact power of ten is rounded once, hence rightly.
std::optional<double> quickDouble(const Numeral &numeral)
{
    const qint64 power = numeral.power();
    const bool exact = numeral.count <= digitsOf64Bits && numeral.digits <= quint64(1) << 53 &&
                       qAbs(power) < qint64(powersOfTen.size());
    if (!exact)
        return {};
    const double size = power < 0 ? double(numeral.digits) / powersOfTen[size_t(-power)]
                                  : double(numeral.digits) * powersOfTen[size_t(power)];
    return numeral.negative ? -size : size;
}

} // namespace

bool isNumber(std::string_view token)
{
    return numeralOf(token).has_value();
}

std::optional<double> doubleOf(std::string_view token)
{
    const std::optional<Numeral> numeral = numeralOf(token);
    if (!numeral)
        return {};
    if (const std::optional<double> quick = quickDouble(*numeral))
        return quick;
    double value = 0;
    const bool outOfRange =
        std::from_chars(token.data(), token.data() + token.size(), value).ec == std::errc::result_out_of_range;
    if (!outOfRange)
        return value;
    if (qint64(significantDigits(token).size()) + numeral->power() > 0)
        return {};
    return numeral->negative ? -0.0 : 0.0;
}

std::optional<qint64> integerOf(std::string_view token)
{
    const std::optional<Numeral> numeral = numeralOf(token);
    if (!numeral)
        return {};
    const bool plain = numeral->fraction == 0 && numeral->exponent == 0;
    if (plain && numeral->count <= digitsOf64Bits)
        return withSign(numeral->digits, numeral->negative);
    return wholeNumber(token, *numeral);
}

} // namespace vexal
