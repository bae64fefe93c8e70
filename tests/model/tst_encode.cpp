#include "encode.h"

#include <QTest>

#include <limits>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

QByteArray encodedText(const QString &text)
{
    return encode(JobArgs{.file_ids = {{text}}}).chopped(2).sliced(13);
}

QByteArray encodedNumber(double number)
{
    return encode(Page{.px = {{number}}}).chopped(2).sliced(13);
}

} // namespace

class TestEncode : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aRecordIsCompactWithItsKeysInOrder()
    {
        const Page page{.i = 2, .label = u"iii"_s, .w = 0.5, .px = {{3, 4}}, .ocr = false};
        QCOMPARE(encode(page), "{\"i\":2,\"label\":\"iii\",\"w\":0.5,\"px\":[3,4],\"ocr\":false}");
        QCOMPARE(encode(SignInAnswer{.token = u"t"_s, .me = {.email = u"e"_s, .name = u"n"_s}}),
                 "{\"token\":\"t\",\"me\":{\"email\":\"e\",\"name\":\"n\"}}");
    }

    void whatIsAbsentIsLeftOut()
    {
        QCOMPARE(encode(Links{}), "{}");
        QCOMPARE(encode(Links{.indd = u""_s}), "{\"indd\":\"\"}");
        QCOMPARE(encode(JobArgs{.file_ids = QStringList()}), "{\"file_ids\":[]}");
    }

    void mapsAreObjects()
    {
        const Page page{.refs = {{{u"latest"_s, {.i = 1}}, {u"a\"b"_s, {}}}}};
        QCOMPARE(encode(page), "{\"i\":0,\"refs\":{\"a\\\"b\":{},\"latest\":{\"i\":1}}}");
    }

    void listsOfListsAreBoth()
    {
        const Finding finding{.boxes = {{{0, 0.25, 1, 1}, {}}}};
        QVERIFY(encode(finding).contains("\"boxes\":[[0,0.25,1,1],[]]"));
    }

    void onlyWhatMustBeEscapedIs()
    {
        QCOMPARE(encodedText(u"\"\\/"_s), "\"\\\"\\\\/\"");
        QCOMPARE(encodedText(u"\b\f\n\r\t"_s), "\"\\b\\f\\n\\r\\t\"");
        QCOMPARE(encodedText(u"\x01\x1F\x7F"_s), "\"\\u0001\\u001f\x7F\"");
        QCOMPARE(encodedText(QString(1, QChar(u'\0'))), "\"\\u0000\"");
        QCOMPARE(encodedText(u"é\u2028\U0001F3E0"_s), "\"\xC3\xA9\xE2\x80\xA8\xF0\x9F\x8F\xA0\"");
    }

    void halfASurrogateBecomesAQuestionMark() { QCOMPARE(encodedText(u"a"_s + QChar(0xD83D)), "\"a?\""); }

    void aDoubleIsWrittenInItsShortestDigits()
    {
        QCOMPARE(encodedNumber(0), "0");
        QCOMPARE(encodedNumber(-0.0), "-0");
        QCOMPARE(encodedNumber(0.1), "0.1");
        QCOMPARE(encodedNumber(-2.5), "-2.5");
        QCOMPARE(encodedNumber(1.0 / 3), "0.3333333333333333");
        QCOMPARE(encodedNumber(5e-324), "5e-324");
        QCOMPARE(encodedNumber(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
    }

    void aTimeIsWrittenWithoutAnExponent()
    {
        QCOMPARE(encodedNumber(1'717'200'000'000), "1717200000000");
        QCOMPARE(encodedNumber(1'717'200'000'000.25), "1717200000000.25");
        QCOMPARE(encodedNumber(1e16), "10000000000000000");
        QCOMPARE(encodedNumber(1e17), "1e+17");
        QCOMPARE(encodedNumber(0.00001), "0.00001");
        QCOMPARE(encodedNumber(0.000001), "1e-06");
    }

    void whatIsNoNumberInJsonBecomesNull()
    {
        QCOMPARE(encodedNumber(std::numeric_limits<double>::quiet_NaN()), "null");
        QCOMPARE(encodedNumber(std::numeric_limits<double>::infinity()), "null");
        QCOMPARE(encodedNumber(-std::numeric_limits<double>::infinity()), "null");
    }

    void integersAreWrittenWhole()
    {
        QCOMPARE(encode(Tally{.open = std::numeric_limits<qint64>::min(), .total = std::numeric_limits<qint64>::max()}),
                 "{\"open\":-9223372036854775808,\"total\":9223372036854775807}");
    }
};

QTEST_APPLESS_MAIN(TestEncode)
#include "tst_encode.moc"
