#include "jsontext.h"

#include <QTest>

using namespace vexal;
using namespace Qt::StringLiterals;

class TestJsonText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTextIsWhatItsCharactersAndEscapesSay()
    {
        QCOMPARE(textOf(""), u""_s);
        QCOMPARE(textOf("plain"), u"plain"_s);
        QCOMPARE(textOf("caf\xC3\xA9"), u"café"_s);
        QCOMPARE(textOf("\\\"\\\\\\/\\b\\f\\n\\r\\t"), u"\"\\/\b\f\n\r\t"_s);
        QCOMPARE(textOf("a\\u00e9\\u00E9\xC3\xA9"), u"aééé"_s);
        QCOMPARE(textOf("\\ud83c\\udfe0"), u"\U0001F3E0"_s);
        QCOMPARE(textOf("\\\\u0041"), u"\\u0041"_s);
    }

    void aByteOrderMarkIsPartOfTheText()
    {
        QCOMPARE(textOf("\xEF\xBB\xBF"), u"\uFEFF"_s);
        QCOMPARE(textOf("\xEF\xBB\xBF\xEF\xBB\xBF"), u"\uFEFF\uFEFF"_s);
        QCOMPARE(textOf("\\n\xEF\xBB\xBFx"), u"\n\uFEFFx"_s);
    }

    /// Texts are looked through eight bytes at a time.
    void oneOddCharacterIsSeenWhereverItStands()
    {
        for (int size = 1; size < 40; ++size) {
            for (int at = 0; at < size; ++at) {
                const QString before(at, u'x');
                const QString after(size - at - 1, u'y');
                const QByteArray accented = (before + u'é' + after).toUtf8();
                const QByteArray escaped = (before + u"\\n"_s + after).toUtf8();
                QCOMPARE(textOf({accented.constData(), size_t(accented.size())}), before + u'é' + after);
                QCOMPARE(textOf({escaped.constData(), size_t(escaped.size())}), before + u'\n' + after);
            }
        }
    }

    void aWrongEscapeOrHalfASurrogateIsNoText()
    {
        for (const char *raw :
             {"\\", "a\\", "\\x", "\\U0041", "\\u", "\\u1", "\\u123", "\\u12g4", "\\u-123", "\\u 123", "\\ud83d",
              "\\udfe0", "\\ud83d\\ud83d", "\\udfe0\\ud83d", "\\ud83d\\n", "x\\ud83dx\\udfe0"})
            QVERIFY2(!textOf(raw), raw);
    }

    void nothingBehindTheTextIsRead()
    {
        QVERIFY(!textOf(std::string_view("\\u0041").substr(0, 5)));
        QVERIFY(!textOf(std::string_view("\\n").substr(0, 1)));
        QCOMPARE(textOf(std::string_view("abc\\x").substr(0, 3)), u"abc"_s);
    }

    void aRememberedTextIsNeverTakenForAnother()
    {
        Texts texts;
        QList<QByteArray> raws;
        for (int number = 0; number < 5'000; ++number)
            raws += QByteArray::number(number) + QByteArray(number % 30, 'z');
        for (int round = 0; round < 2; ++round) {
            for (const QByteArray &raw : raws)
                QCOMPARE(texts.textOf({raw.constData(), size_t(raw.size())}), QString::fromLatin1(raw));
        }
    }

    void aTextThatComesAgainTakesItsMemoryOnce()
    {
        Texts texts;
        const std::string first = "in_review";
        const std::string second = "in_review";
        QCOMPARE(texts.textOf(first)->constData(), texts.textOf(second)->constData());
        QVERIFY(!texts.textOf("\\x"));
        QVERIFY(!texts.textOf("\\x"));
    }
};

QTEST_APPLESS_MAIN(TestJsonText)
#include "tst_jsontext.moc"
