#include "decode.h"
#include "encode.h"
#include "jsonliteral.h"
#include "wellformed.h"

#include <QTest>
#include <QThread>

#include <memory>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), size_t(bytes.size())};
}

/// A board with something in every list, of the size of a page of text.
QByteArray smallBoard()
{
    return "{'rev': 7, 'me': {'email': 'mira', 'name': 'Mira'}, 'users': [{'email': 'mira', 'name': 'Mira', "
           "'last_seen': 1.5}],\n"
           " 'files': [{'id': 'f', 'status': 'new', 'links': {'gmail': 'x'}, 'refs': [{'role': 'latest', 'matched': "
           "3}],\n"
           "  'pages': [{'i': 0, 'px': [3, 4.5], 'refs': {'latest': {'i': 1, 'label': 'caf\\u00e9 \\'é\\''}}, 'ocr': "
           "true}]}],\n"
           " 'sync': null, 'jobs': [{'id': 'j', 'kind': 'sync', 'status': 'done', 'steps': ['a', 'b'], 'args': "
           "{'file_ids': []}}],\n"
           " 'reports': [], 'events': [{'id': 1, 'at': 1e3, 'kind': 'sync'}], 'later': {'a': [1, -2e3, {'b': '\\\\'}], 'c': [[], {}, false]}}"_json;
}

/// The same document in a field that is read, in one that is ignored, and in the second of two.
QList<QByteArray> wherever(const QByteArray &value)
{
    return {"{'email':"_json + value + ",'name':'n'}"_json, "{'email':'e','name':'n','other':"_json + value + "}",
            "{'email':'e','name':'n','email':"_json + value + "}",
            "{'email':'e','name':'n','other':[{'deep':"_json + value + "}]}"};
}

/// Runs \a work on a thread with a stack of \a stack bytes.
void onAStackOf(uint stack, const std::function<void()> &work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->setStackSize(stack);
    thread->start();
    QVERIFY(thread->wait());
}

} // namespace

/// What a document must be as a whole, whatever it holds.
class TestDocuments : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nothingIsNoDocument()
    {
        for (const QByteArray &bytes : {QByteArray(), QByteArray(""), QByteArray(" "), QByteArray("\n\t \r"),
                                        QByteArray(byteOrderMark), QByteArray(1, '\0'), QByteArray(100, ' ')}) {
            const Decoded<Tally> tally = decode<Tally>(bytes);
            QVERIFY(!tally);
            QVERIFY(!tally.error.text().isEmpty());
        }
    }

    void aDocumentIsAnObject()
    {
        QVERIFY(decode<Tally>("{}"));
        QVERIFY(decode<Tally>(" \r\n\t{ } \r\n\t"));
        for (const char *bytes : {"[]", "[{}]", "1", "\"{}\"", "null", "true", "nul", "}", "]", "x"})
            QVERIFY2(!decode<Tally>(bytes), bytes);
    }

    void aByteOrderMarkAtTheStartIsSkipped()
    {
        QCOMPARE(decode<Tally>(byteOrderMark + QByteArray("{'open':1}"_json))->open, 1);
        QCOMPARE(decode<Tally>(byteOrderMark + QByteArray(" {'open':1} "_json))->open, 1);
    }

    void aByteOrderMarkElsewhereFails()
    {
        const QByteArray mark = byteOrderMark;
        for (const QByteArray &bytes : {mark + mark + "{}", ' ' + mark + "{}", "{}" + mark, '{' + mark + '}',
                                        mark.left(2) + "{}", QByteArray("\xFF\xFE{\0}\0", 6)})
            QVERIFY2(!decode<Tally>(bytes), bytes.toHex().constData());
    }

    void aDocumentThatIsMalformedAnywhereFails()
    {
        for (const char *value : {"",
                                  "nul",
                                  "nulll",
                                  "tru",
                                  "truefalse",
                                  "True",
                                  "01",
                                  "-",
                                  "1.",
                                  ".5",
                                  "+1",
                                  "1e",
                                  "0x1",
                                  "1\x01",
                                  "1\xC3\xA9",
                                  "NaN",
                                  "\"",
                                  "\"a",
                                  "\"a\\\"",
                                  "\"\\x\"",
                                  "\"\\u12\"",
                                  "\"\\u12g4\"",
                                  "\"a\nb\"",
                                  "\"\x01\"",
                                  "'a'",
                                  "\"a\"\"b\"",
                                  "\"a\" \"b\"",
                                  "\"a\"b",
                                  "\"a\":1",
                                  "\"a\":\"b\"",
                                  "\\\"a\"",
                                  "[",
                                  "]",
                                  "{",
                                  "}",
                                  "[1",
                                  "[1,]",
                                  "[,1]",
                                  "[1 2]",
                                  "[1}",
                                  "[1]]",
                                  "{\"a\"}",
                                  "{\"a\":}",
                                  "{\"a\":1,}",
                                  "{\"a\" 1}",
                                  "{\"a\":1]",
                                  "{\"a\":1}}",
                                  "{a:1}",
                                  "{1:2}",
                                  "{\"a\":b}",
                                  "[01]",
                                  "[\"\\x\"]",
                                  "[nul]",
                                  "{\"\\x\":1}",
                                  "[\"a\":1]",
                                  "[[1]",
                                  "[{]}",
                                  "{\"a\":[}]",
                                  "{\"a\":\"b\":1}",
                                  "// x",
                                  "/**/1",
                                  ",",
                                  ":",
                                  "[1],",
                                  "{},\"a\"",
                                  "{},\"a\":01",
                                  "1,\"a\":[}",
                                  "1}{"}) {
            for (const QByteArray &bytes : wherever(value)) {
                QVERIFY2(!isWellFormed(view(bytes)), bytes.constData());
                QVERIFY2(!decode<Me>(bytes), bytes.constData());
            }
        }
    }

    void whatFollowsTheEndFails()
    {
        for (const char *more : {"{}", "x", "1", ",", "}", "]", "\"", "\"a\"", "null", "\x01", "\\", "//"}) {
            QVERIFY2(!decode<Tally>("{}" + QByteArray(more)), more);
            QVERIFY2(!decode<Tally>("{'open':1}"_json + QByteArray(" ") + more), more);
        }
        QVERIFY(!decode<Tally>(QByteArray("{}\0", 3)));
    }

    /// A colon behind a string makes it look like a key: then one bracket too few here and one too many there agree.
    void aStringThatIsNoKeyTakesNoValue()
    {
        QVERIFY(!decode<SignInAnswer>("{'me':{'email':'e':1},'name':'n','token':'t'}}"_json));
        QVERIFY(!decode<SignInAnswer>("{'me':{'email':'e','name':'n':1},'token':'t'}}"_json));
        QVERIFY(!decode<SignInAnswer>("{'me':{'email':'e','name':'n','x':'y':1},'token':'t'}}"_json));
        QVERIFY(!decode<JobArgs>("{'file_ids':['a':1,'b']}"_json));
        QVERIFY(!decode<JobArgs>("{'file_ids':['a','b':1]]}"_json));
    }

    void aLoneSurrogateFails()
    {
        for (const char *text :
             {"\"\\ud800\"", "\"\\udc00\"", "\"\\ud83d\\u0041\"", "\"\\ud83d\\ud83d\"", "\"\\ude00\\ud83d\"",
              "\"a\\ud83d\"", "\"\\ud83d b\"", "\"\\ud83d\\n\"", "[\"\\udbff\"]", "{\"\\udfff\":1}"}) {
            for (const QByteArray &bytes : wherever(text))
                QVERIFY2(!decode<Me>(bytes), bytes.constData());
        }
        QVERIFY(!decode<Tally>("{'\\ud800':1}"_json));
        QVERIFY(!decode<Page>("{'i':0,'refs':{'\\ud800':{}}}"_json));
    }

    void invalidUtf8Fails()
    {
        for (const char *text :
             {"\xFF", "\x80", "\xC3", "\xC3(", "\xC0\xAF", "\xE2\x82", "\xE2\x28\xA1", "\xED\xA0\x80", "\xED\xB0\x80",
              "\xF0\x9F\x8F", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"}) {
            for (const QByteArray &bytes : wherever('"' + QByteArray(text) + '"'))
                QVERIFY2(!decode<Me>(bytes), bytes.constData());
            QVERIFY2(!decode<Tally>("{\"" + QByteArray(text) + "\":1}"), text);
            QVERIFY2(!decode<Tally>("{}" + QByteArray(text)), text);
        }
    }

    void aDocumentThatIsCutAnywhereFails()
    {
        const QByteArray whole = smallBoard();
        QVERIFY(decode<BoardState>(whole));
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(!decode<BoardState>(whole.first(size)), qPrintable(QString::number(size)));
    }

    void whateverOneByteBecomesNothingMalformedDecodes()
    {
        const QByteArray whole = smallBoard();
        int decoded = 0;
        for (qsizetype at = 0; at < whole.size(); ++at) {
            for (const char c : QByteArrayView(" {}[]:,\"\\0.e-tx\x01\x80\xC3")) {
                QByteArray changed = whole;
                changed[at] = c;
                const bool taken = bool(decode<BoardState>(changed));
                decoded += taken;
                QVERIFY2(!taken || (isWellFormed(view(changed)) && changed.isValidUtf8()), changed.constData());
            }
        }
        QVERIFY(decoded > 1000);
    }

    void whateverOneByteLessOrTwiceNothingMalformedDecodes()
    {
        const QByteArray whole = smallBoard();
        for (qsizetype at = 0; at < whole.size(); ++at) {
            for (const QByteArray &changed : {QByteArray(whole).remove(at, 1), QByteArray(whole).insert(at, whole[at])})
                QVERIFY2(!decode<BoardState>(changed) || isWellFormed(view(changed)), changed.constData());
        }
    }

    void theBytesMayLieAnywhere()
    {
        const QByteArray board = smallBoard();
        const BoardState expected = *decode<BoardState>(board);
        const QByteArray behind = board + "}}]\"garbage";
        QVERIFY(*decode<BoardState>(QByteArray::fromRawData(behind.constData(), board.size())) == expected);
        QByteArray cutInFront = "front" + board;
        cutInFront.remove(0, 5);
        QVERIFY(*decode<BoardState>(std::move(cutInFront)) == expected);
        QByteArray withRoom = board;
        withRoom.reserve(2 * board.size());
        QVERIFY(*decode<BoardState>(std::move(withRoom)) == expected);
        QByteArray kept = board;
        QVERIFY(*decode<BoardState>(kept) == expected);
        QCOMPARE(kept, board);
    }

    void aNestingBombIsRefusedOrIgnoredButNeverCrashes()
    {
        constexpr int depth = 10'000'000;
        const QByteArray open(depth, '[');
        const QByteArray close(depth, ']');
        const QByteArray objects = QByteArray("{\"a\":").repeated(depth / 5);
        QVERIFY(!decode<Tally>(open));
        QVERIFY(!decode<Tally>(objects));
        QVERIFY(!decode<Tally>("{'open':"_json + open + close + '}'));
        QVERIFY(!decode<Tally>("{'other':"_json + open + '}'));
        QVERIFY(!decode<Tally>("{'other':"_json + open + close.chopped(1) + '}'));
        QVERIFY(!decode<Tally>("{'other':"_json + objects + '1' + '}'));
        QVERIFY(decode<Tally>("{'other':"_json + open + close + '}'));
        QVERIFY(decode<Tally>("{'other':"_json + objects + '1' + QByteArray(depth / 5, '}') + '}'));
        QVERIFY(decode<Page>("{'i':0,'refs':"_json + objects + '1' + QByteArray(depth / 5, '}') + '}'));
        QVERIFY(!decode<Page>("{'i':0,'px':"_json + open + close + '}'));
    }

    void aSmallStackIsEnough()
    {
        const QByteArray board = smallBoard();
        const QByteArray bomb = "{'other':"_json + QByteArray(1'000'000, '[') + QByteArray(1'000'000, ']') + '}';
        bool decoded = false;
        bool ignored = false;
        onAStackOf(256 * 1024, [&] {
            decoded = bool(decode<BoardState>(board));
            ignored = bool(decode<Tally>(bomb));
        });
        QVERIFY(decoded);
        QVERIFY(ignored);
    }

    void aDocumentOfFiftyMegabytesIsReadOrRefused()
    {
        constexpr qsizetype size = 50'000'000;
        const QByteArray text(size, 'x');
        QCOMPARE(decode<Me>("{'email':'e','name':'"_json + text + "\"}")->name.size(), size);
        QVERIFY(!decode<Me>("{'email':'e','name':'"_json + text));
        QVERIFY(decode<Tally>("{'other':'"_json + text + "\"}"));
        QVERIFY(decode<Tally>("{'other':[0"_json + QByteArray(",0").repeated(size / 2) + "]}"));
        QVERIFY(!decode<Page>("{'i':0,'w':"_json + QByteArray(size, '9') + '}'));
        QVERIFY(!decode<Tally>(text));
        QVERIFY(!decode<Tally>(QByteArray(size, ' ')));
    }

    void aBoardOfFiftyMegabytesIsRead()
    {
        const QByteArray board = smallBoard();
        const qsizetype start = board.indexOf("{\"id\": \"f\"");
        const qsizetype end = board.indexOf("],\n \"sync\"");
        const QByteArray file = board.sliced(start, end - start);
        const int count = int(50'000'000 / (file.size() + 1));
        const QByteArray files = (file + ',').repeated(count).chopped(1);
        const Decoded<BoardState> decoded = decode<BoardState>(board.first(start) + files + board.sliced(end));
        QVERIFY2(decoded, qPrintable(decoded.error.text()));
        QCOMPARE(decoded->files.size(), count);
        QVERIFY(decoded->files.last() == decoded->files.first());
    }
};

QTEST_APPLESS_MAIN(TestDocuments)
#include "tst_documents.moc"
