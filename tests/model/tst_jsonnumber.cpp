#include "jsonnumber.h"

#include <QTest>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>

using namespace vexal;

namespace {

constexpr qint64 least = std::numeric_limits<qint64>::min();
constexpr qint64 largest = std::numeric_limits<qint64>::max();

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), size_t(bytes.size())};
}

} // namespace

class TestJsonNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aNumberFollowsTheGrammar()
    {
        for (const char *token : {"0", "-0", "7", "-7", "10", "0.5", "-0.0", "1.25", "1e5", "1E5", "1e+5", "1e-5",
                                  "0e0", "1.5e300", "123456789012345678901234567890", "1e99999999999999999999"})
            QVERIFY2(isNumber(token), token);
    }

    void whatDoesNotFollowTheGrammarIsNoNumber()
    {
        for (const char *token : {"",    "-",        "+1",    "01",   "-01", "00", ".5",    "1.",    "-.5", "1.e5",
                                  "1e",  "1e+",      "1e5.0", "0x10", "1 ",  " 1", "1,",    "1_000", "1f",  "NaN",
                                  "nan", "Infinity", "inf",   "-inf", "--1", "1-", "1.2.3", "\u0663"}) {
            QVERIFY2(!isNumber(token), token);
            QVERIFY2(!doubleOf(token), token);
            QVERIFY2(!integerOf(token), token);
        }
    }

    void anIntegerIsReadHoweverItIsWritten_data()
    {
        QTest::addColumn<qint64>("expected");
        QTest::newRow("7") << 7LL;
        QTest::newRow("-7") << -7LL;
        QTest::newRow("0") << 0LL;
        QTest::newRow("-0") << 0LL;
        QTest::newRow("-0.0e5") << 0LL;
        QTest::newRow("0e99999999999999999999") << 0LL;
        QTest::newRow("7.0") << 7LL;
        QTest::newRow("7e0") << 7LL;
        QTest::newRow("7E+0") << 7LL;
        QTest::newRow("70e-1") << 7LL;
        QTest::newRow("0.007e3") << 7LL;
        QTest::newRow("7.00000000000000000000000000000000") << 7LL;
        QTest::newRow("700000000000000000000000000000e-29") << 7LL;
        QTest::newRow("0.0000000000000000000000000000000000007e37") << 7LL;
        QTest::newRow("1e18") << 1'000'000'000'000'000'000LL;
        QTest::newRow("9007199254740993.0") << 9'007'199'254'740'993LL;
        QTest::newRow("9223372036854775807") << largest;
        QTest::newRow("9223372036854775807.0") << largest;
        QTest::newRow("922337203685477580.7e1") << largest;
        QTest::newRow("-9223372036854775808") << least;
        QTest::newRow("-9223372036854775808.000") << least;
    }

    void anIntegerIsReadHoweverItIsWritten()
    {
        QFETCH(qint64, expected);
        const std::optional<qint64> integer = integerOf(QTest::currentDataTag());
        QVERIFY(integer);
        QCOMPARE(*integer, expected);
    }

    void whatIsNoIntegerOf64BitsIsRefused()
    {
        for (const char *token :
             {"7.5", "7e-1", "0.1", "-0.1", "1e-400", "7.00000000000000000000000000000001", "9223372036854775808",
              "-9223372036854775809", "9223372036854775808.0", "18446744073709551616", "18446744073709551623",
              "99999999999999999999", "123456789012345678901234567890", "1e19", "1e18446744073709551616", "1e400",
              "1e99999999999999999999"}) {
            QVERIFY2(isNumber(token), token);
            QVERIFY2(!integerOf(token), token);
        }
    }

    void aDoubleIsTheNearestOne_data()
    {
        QTest::addColumn<double>("expected");
        QTest::newRow("0") << 0.0;
        QTest::newRow("1717200000000") << 1717200000000.0;
        QTest::newRow("1717200000000.25") << 1717200000000.25;
        QTest::newRow("0.1") << 0.1;
        QTest::newRow("0.12345678901234567890123") << 0.12345678901234568;
        QTest::newRow("123456789012345678901234567890") << 123456789012345678901234567890.0;
        QTest::newRow("9007199254740993") << 9007199254740992.0;
        QTest::newRow("9007199254740993.0000000000000000000000001") << 9007199254740994.0;
        QTest::newRow("18446744073709551617") << 18446744073709551617.0;
        QTest::newRow("1e22") << 1e22;
        QTest::newRow("1e23") << 1e23;
        QTest::newRow("1e-22") << 1e-22;
        QTest::newRow("8.5e-23") << 8.5e-23;
        QTest::newRow("1e00000000000000000000001") << 10.0;
        QTest::newRow("0e99999999999999999999") << 0.0;
        QTest::newRow("5e-324") << std::numeric_limits<double>::denorm_min();
        QTest::newRow("2.2250738585072011e-308") << 2.2250738585072011e-308;
        QTest::newRow("1.7976931348623157e308") << std::numeric_limits<double>::max();
        QTest::newRow("1e-400") << 0.0;
        QTest::newRow("-1e-99999999999999999999") << 0.0;
    }

    void aDoubleIsTheNearestOne()
    {
        QFETCH(double, expected);
        const std::optional<double> number = doubleOf(QTest::currentDataTag());
        QVERIFY(number);
        QVERIFY(*number == expected);
        QCOMPARE(std::signbit(*number), QTest::currentDataTag()[0] == '-');
    }

    void aNumberBeyondTheLargestDoubleIsRefused()
    {
        for (const char *token :
             {"1e309", "1e18446744073709551617", "-1e309", "1.8e308", "1e99999999999999999999", "0.1e400"})
            QVERIFY2(!doubleOf(token), token);
        const QByteArray digits = QByteArray(400, '9');
        QVERIFY(!doubleOf(view(digits)));
        QVERIFY(!doubleOf(view(digits + ".5")));
    }

    void aLongNumberIsReadOverAllItsDigits()
    {
        const QByteArray zeros(1'000'000, '0');
        QVERIFY(*doubleOf(view("0." + zeros + "1e1000001")) == 1.0);
        QVERIFY(*integerOf(view("0." + zeros + "7e1000001")) == 7);
        QVERIFY(*integerOf(view("7" + zeros + "e-1000000")) == 7);
        QVERIFY(*integerOf(view("7." + zeros)) == 7);
        QVERIFY(!integerOf(view("7." + zeros + "1")));
    }

    void theShortestDigitsOfAnyDoubleReadBackAsTheSame()
    {
        std::mt19937_64 random(4);
        char digits[32];
        for (int round = 0; round < 200'000; ++round) {
            const double number = std::bit_cast<double>(quint64(random()));
            if (!std::isfinite(number))
                continue;
            const char *const end = std::to_chars(digits, std::end(digits), number).ptr;
            const std::optional<double> read = doubleOf({digits, end});
            QVERIFY(read);
            QCOMPARE(std::bit_cast<quint64>(*read), std::bit_cast<quint64>(number));
        }
    }

    void shortDecimalsAreReadAsTheCompilerDoes()
    {
        std::mt19937_64 random(5);
        for (int round = 0; round < 200'000; ++round) {
            const QByteArray token = QByteArray::number(qint64(random() % 10'000'000)) + '.' +
                                     QByteArray::number(qint64(random() % 1'000'000'000)) + 'e' +
                                     QByteArray::number(int(random() % 60) - 30);
            const std::optional<double> read = doubleOf(view(token));
            QVERIFY(read);
            QCOMPARE(*read, std::strtod(token.constData(), nullptr));
        }
    }
};

QTEST_APPLESS_MAIN(TestJsonNumber)
#include "tst_jsonnumber.moc"
