#include "wellformed.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QTest>

using namespace vexal;

namespace {

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), size_t(bytes.size())};
}

} // namespace

class TestWellFormed : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aValueIsOneByTheGrammar()
    {
        for (const char *json : {"null",
                                 "true",
                                 "false",
                                 "0",
                                 "-1.5e+3",
                                 "123456789012345678901234567890",
                                 "1e999",
                                 "\"\"",
                                 "\"a\"",
                                 "[]",
                                 "{}",
                                 " [ ] ",
                                 "\t{\r\n}\n",
                                 "[1]",
                                 "[1,2]",
                                 "[[],{}]",
                                 "{\"a\":1}",
                                 "{\"a\":1,\"a\":2}",
                                 "{\"\":[{\"b\":[null]}]}",
                                 "[ 1 , \"x\" , { \"k\" : true } ]",
                                 "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"",
                                 "\"\\u0041\\u0000\\uFFFF\"",
                                 "\"\\ud83d\\ude00\"",
                                 "\"\\uD83D\\uDE00\"",
                                 "\"\x7F \xC3\xA9 \xE2\x80\xA8 \xF0\x9F\x8F\xA0\""})
            QVERIFY2(isWellFormed(json), json);
        QVERIFY(!isWellFormed(std::string_view("\"\0\"", 3)));
    }

    void anythingElseIsNone()
    {
        for (const char *json : {"",
                                 " ",
                                 "nul",
                                 "nulll",
                                 "True",
                                 "tru e",
                                 "01",
                                 "1 2",
                                 "1,",
                                 ",",
                                 ":",
                                 "\"",
                                 "\"a",
                                 "\"a\\",
                                 "\"a\\\"",
                                 "\"a\"b",
                                 "\"a\"\"b\"",
                                 "'a'",
                                 "\"\n\"",
                                 "\"\x01\"",
                                 "\"\\\n\"",
                                 "\"\\x\"",
                                 "\"\\u12\"",
                                 "\"\\u12g4\"",
                                 "\"\\u-123\"",
                                 "\"\\u+123\"",
                                 "\"\\u 123\"",
                                 "\"\\ud83d\"",
                                 "\"\\ude00\"",
                                 "\"\\ude00\\ud83d\"",
                                 "\"\\ud83d\\u0041\"",
                                 "\"\\ud83dx\\ude00\"",
                                 "[",
                                 "]",
                                 "{",
                                 "}",
                                 "[}",
                                 "{]",
                                 "[1",
                                 "[1,",
                                 "[1,]",
                                 "[,1]",
                                 "[,]",
                                 "[1 2]",
                                 "[1]]",
                                 "[1:2]",
                                 "{\"a\"}",
                                 "{\"a\":}",
                                 "{\"a\":1,}",
                                 "{,}",
                                 "{\"a\" 1}",
                                 "{\"a\":1 \"b\":2}",
                                 "{\"a\":\"b\":1}",
                                 "{a:1}",
                                 "{1:1}",
                                 "{\"a\":1}}",
                                 "[{\"a\":1]}",
                                 "{\"a\":[1}",
                                 "\xEF\xBB\xBF"
                                 "1",
                                 "\xC2\xA0"
                                 "1",
                                 "\f1",
                                 "1\x01",
                                 "// 1\n1",
                                 "/* */ 1"})
            QVERIFY2(!isWellFormed(json), json);
    }

    void noNestingIsTooDeep()
    {
        constexpr int depth = 10'000'000;
        QVERIFY(isWellFormed(view(QByteArray(depth, '[') + QByteArray(depth, ']'))));
        QVERIFY(!isWellFormed(view(QByteArray(depth, '['))));
        QVERIFY(!isWellFormed(view(QByteArray(depth, '[') + QByteArray(depth - 1, ']'))));
        QVERIFY(!isWellFormed(view(QByteArray(depth, '[') + QByteArray(depth + 1, ']'))));
        QVERIFY(!isWellFormed(view(QByteArray(depth, '[') + '}' + QByteArray(depth - 1, ']'))));
        QVERIFY(isWellFormed(view(QByteArray("{\"a\":").repeated(depth / 10) + '1' + QByteArray(depth / 10, '}'))));
    }

    /// Qt reads the same grammar by other code. It takes surrogates and control characters
    /// as they come, so there are none here.
    void whateverOneByteBecomesQtAgrees()
    {
        const QByteArray json = "{\"a\": [1, -2.5e3, \"x\", null], \"b\":{\"c\":true,\"d\":[]},\"e\" : false}";
        QVERIFY(isWellFormed(view(json)));
        int wellFormed = 0;
        for (qsizetype at = 0; at < json.size(); ++at) {
            for (const char c : QByteArrayView(" {}[]:,\"0123459.-+eEtfnulsxa#\x7F")) {
                QByteArray changed = json;
                changed[at] = c;
                const bool qtAgrees = !QJsonDocument::fromJson(changed).isNull();
                QVERIFY2(isWellFormed(view(changed)) == qtAgrees, changed.constData());
                wellFormed += qtAgrees;
            }
        }
        QVERIFY(wellFormed > 100);
    }
};

QTEST_APPLESS_MAIN(TestWellFormed)
#include "tst_wellformed.moc"
