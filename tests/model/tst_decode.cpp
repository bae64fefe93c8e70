#include "decode.h"
#include "jsonliteral.h"

#include <QTest>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

/// A board that holds \a files and nothing else.
QByteArray boardWith(const QByteArray &files)
{
    return "{'rev':1,'me':{'email':'mira','name':'Mira'},'users':[],'files':["_json + files +
           "],'jobs':[],'reports':[],'events':[]}"_json;
}

/// A detail that holds \a findings and \a comments.
QByteArray detailWith(const QByteArray &findings, const QByteArray &comments = {})
{
    return "{'file':{'id':'f','status':'new'},'findings':["_json + findings + "],'comments':["_json + comments + "]}";
}

/// A finding with \a more at its end, whose state is left to it too.
QByteArray finding(const QByteArray &more)
{
    return "{'id':'n','file_id':'f','page':0,'against':'latest','kind':'words','severity':'low','title':'A word'"_json +
           more + '}';
}

QByteArray note(const QByteArray &more)
{
    return "{'id':'c','file_id':'f','text':'Hm','by':'mira','at':1"_json + more + '}';
}

Tally tallyOf(const QByteArray &bytes)
{
    const Decoded<Tally> decoded = decode<Tally>(bytes);
    if (!decoded)
        qFatal("%s: %s", bytes.constData(), qPrintable(decoded.error.text()));
    return *decoded;
}

} // namespace

/// What a document must hold to be a record.
class TestDecode : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aDocumentOfTheServerBecomesARecord()
    {
        const Decoded<FileDetail> detail = decode<FileDetail>(detailWith(
            finding(
                ",'state':'issue','box':[0.1,0.2,0.3,0.4],'boxes':[[1,2,3,4],[]],'ord':3,'before':'caf\\u00e9'"_json),
            note(",'page':2,'x':0.25,'y':0.5,'resolved':1,'resolved_by':'teo'"_json)));
        QVERIFY2(detail, qPrintable(detail.error.text()));
        const FileDetail expected{.file = {.id = u"f"_s, .status = u"new"_s},
                                  .findings = {{.id = u"n"_s,
                                                .file_id = u"f"_s,
                                                .page = 0,
                                                .against = u"latest"_s,
                                                .kind = u"words"_s,
                                                .severity = u"low"_s,
                                                .title = u"A word"_s,
                                                .before = u"café"_s,
                                                .box = Box{0.1, 0.2, 0.3, 0.4},
                                                .boxes = QList<Box>{{1, 2, 3, 4}, {}},
                                                .state = u"issue"_s,
                                                .ord = 3}},
                                  .comments = {{.id = u"c"_s,
                                                .file_id = u"f"_s,
                                                .page = 2,
                                                .x = 0.25,
                                                .y = 0.5,
                                                .text = u"Hm"_s,
                                                .by = u"mira"_s,
                                                .at = 1,
                                                .resolved = 1,
                                                .resolved_by = u"teo"_s}}};
        QVERIFY(*detail == expected);
    }

    void aVersionASignInAndASampleDecode()
    {
        QCOMPARE(decode<VersionInfo>("{'version':'1.2','build':12,'url':'https://x.example'}"_json)->build, 12);
        QCOMPARE(decode<SignInAnswer>("{'token':'t','me':{'email':'e','name':'n'}}"_json)->me.email, u"e"_s);
        const Decoded<Sample> sample =
            decode<Sample>("{'board':"_json + boardWith("") + ",'details':{'f':"_json + detailWith("") + "}}");
        QCOMPARE(sample->details.value(u"f"_s).file.id, u"f"_s);
    }

    void aFileWithoutPagesRefsCountsTallyOrLinksDecodes()
    {
        const Decoded<BoardState> board = decode<BoardState>(boardWith("{'id':'f','status':'new'}"_json));
        QVERIFY(board);
        const FileItem &file = board->files.first();
        QVERIFY(!file.pages && !file.refs && !file.counts && !file.tally && !file.links);
    }

    void aFindingWithoutStateFailsTheWholeDetail()
    {
        const Decoded<FileDetail> detail =
            decode<FileDetail>(detailWith(finding(",'state':'open'"_json) + ',' + finding("")));
        QVERIFY(!detail);
        QCOMPARE(detail.error.text(), u"findings[1].state: missing"_s);
    }

    void aFindingWithANullBoxHasNone()
    {
        const Decoded<FileDetail> detail = decode<FileDetail>(detailWith(finding(",'state':'open','box':null"_json)));
        QVERIFY(detail);
        QVERIFY(!detail->findings.first().box);
    }

    void aNoteIsResolvedByAnIntegerNotByABoolean()
    {
        QVERIFY(!decode<FileDetail>(detailWith("", note(",'resolved':true"_json))));
        QVERIFY(!decode<FileDetail>(detailWith("", note(",'resolved':false"_json))));
        QCOMPARE(decode<FileDetail>(detailWith("", note(",'resolved':1"_json)))->comments.first().resolved, 1);
        QVERIFY(!decode<FileDetail>(detailWith("", note("")))->comments.first().resolved);
    }

    void aBoardWithoutSyncOrWithANullOneHasNone()
    {
        const QByteArray missing = boardWith("");
        const QByteArray null = QByteArray(missing).replace("\"jobs\"", "\"sync\":null,\"jobs\"");
        const QByteArray there = QByteArray(null).replace("null", "{'id':'j','kind':'sync','status':'queued'}"_json);
        QVERIFY(!decode<BoardState>(missing)->sync);
        QVERIFY(!decode<BoardState>(null)->sync);
        QCOMPARE(decode<BoardState>(there)->sync->status, u"queued"_s);
    }

    void aBoardWithoutEventsFails()
    {
        const Decoded<BoardState> board = decode<BoardState>(boardWith("").replace(",\"events\":[]", ""));
        QVERIFY(!board);
        QCOMPARE(board.error.text(), u"events: missing"_s);
    }

    void aPageKeepsReferencesInRolesThatNobodyKnows()
    {
        const Decoded<Page> page = decode<Page>("{'i':0,'refs':{'latest':{'i':1},'draft':{'i':2},'':{}}}"_json);
        QVERIFY(page);
        QCOMPARE(page->refs->keys(), (QStringList{u""_s, u"draft"_s, u"latest"_s}));
        QCOMPARE(page->refs->value(u"draft"_s).i, 2);
    }

    void kindsSeveritiesStatesAndStatusesThatNobodyKnowsDecode()
    {
        const QByteArray odd = QByteArray(finding(",'state':'pondered'"_json))
                                   .replace("words", "smells")
                                   .replace("low", "\xF0\x9F\x8F\xA0");
        const Decoded<FileDetail> detail = decode<FileDetail>(detailWith(odd));
        QVERIFY(detail);
        QCOMPARE(detail->findings.first().kind, u"smells"_s);
        QCOMPARE(detail->findings.first().severity, u"\U0001F3E0"_s);
        QCOMPARE(detail->findings.first().state, u"pondered"_s);
        QCOMPARE(decode<Job>("{'id':'j','kind':'','status':'dreaming'}"_json)->status, u"dreaming"_s);
    }

    void keysThatNobodyKnowsAreIgnoredEverywhere()
    {
        const QByteArray extra = "'extra':{'a':[1,{'b':null}],'c':'\\u00e9\\n'},'':[],'Status':1"_json;
        const QByteArray plain =
            boardWith("{'id':'f','status':'new','tally':{},'pages':[{'i':0,'refs':{'latest':{}}}]}"_json);
        QByteArray extended = plain;
        extended.replace("{}", '{' + extra + '}')
            .replace("{\"i", '{' + extra + ",\"i")
            .replace("[]}", "[]," + extra + '}');
        const Decoded<BoardState> board = decode<BoardState>(extended);
        QVERIFY2(board, qPrintable(board.error.text()));
        QCOMPARE(extended.count("extra"), 5);
        QVERIFY(*board == *decode<BoardState>(plain));
    }

    void anIgnoredKeyMayHoldAnythingWellFormed()
    {
        for (const char *value :
             {"123456789012345678901234567890", "-0.1e-999", "1e999", "\"\"", "\"\\\"]}\"", "\"\\\\\"", "[]", "{}",
              "[[[]],{}]", "{\"a\":{\"a\":1,\"a\":2}}", "true", "false", "null", "{\"open\":7}"}) {
            const QByteArray bytes = "{'x':"_json + QByteArray(value) + ",'open':1,'y': "_json + value + " }";
            const Decoded<Tally> tally = decode<Tally>(bytes);
            QVERIFY2(tally, bytes.constData());
            QCOMPARE(tally->open, 1);
        }
    }

    void anIntegerMayBeWrittenWithAPointOrAnExponent()
    {
        for (const char *seven : {"7", "7.0", "7e0", "7E0", "7.00", "70e-1", "0.7e1"})
            QCOMPARE(tallyOf("{'open':"_json + QByteArray(seven) + "}").open, 7);
    }

    void aFractionOrANumberBeyond64BitsIsNoInteger()
    {
        for (const char *number :
             {"7.5", "7e-1", "9223372036854775808", "-9223372036854775809", "1e19", "123456789012345678901234567890"}) {
            const Decoded<Tally> tally = decode<Tally>("{'open':"_json + QByteArray(number) + "}");
            QVERIFY2(!tally, number);
            QCOMPARE(tally.error.path, u"open"_s);
        }
        QCOMPARE(tallyOf("{'open':9223372036854775807,'total':-9223372036854775808}"_json).total,
                 std::numeric_limits<qint64>::min());
    }

    void aNumberBeyond64BitsIsNoNumber()
    {
        QVERIFY(!decode<Page>("{'i':0,'w':1e309}"_json));
        QCOMPARE(decode<Page>("{'i':0,'w':1e-400}"_json)->w, 0.0);
        QCOMPARE(decode<Page>("{'i':0,'w':7}"_json)->w, 7.0);
        QCOMPARE(decode<Page>("{'i':0,'w':0.12345678901234567890123}"_json)->w, 0.12345678901234568);
    }

    void aKeyGivenTwiceCountsTheFirstTime()
    {
        QCOMPARE(tallyOf("{'open':1,'open':2}"_json).open, 1);
        QCOMPARE(tallyOf("{'open':1,'total':2,'open':'no integer at all'}"_json).open, 1);
        QCOMPARE(tallyOf("{'open':1,'open':null}"_json).open, 1);
        QVERIFY(!tallyOf("{'open':null,'open':2}"_json).open);
        QVERIFY(!decode<Tally>("{'open':'no integer','open':2}"_json));
        const Decoded<Page> page = decode<Page>("{'i':0,'refs':{'a':{'i':1},'a':{'i':'x'}},'refs':{}}"_json);
        QCOMPARE(page->refs->value(u"a"_s).i, 1);
    }

    void aKeyMayBeWrittenWithEscapes()
    {
        QCOMPARE(tallyOf("{'\\u006fpen':1,'t\\u006ftal':2}"_json).open, 1);
        QCOMPARE(tallyOf("{'open':1,'\\u006fpen':2}"_json).open, 1);
        QVERIFY(!tallyOf("{'open\\u0000':1}"_json).open);
        QCOMPARE(decode<Page>("{'i':0,'refs':{'\\ud83c\\udfe0\\'':{}}}"_json)->refs->firstKey(), u"\U0001F3E0\""_s);
    }

    void aKeyIsTheWholeKey()
    {
        QVERIFY(tallyOf("{'ope':1,'opened':1,'Open':1,' open':1,'open ':1,'':1,'open\\'':1}"_json) == Tally{});
    }

    void keysMayComeInAnyOrder()
    {
        const Tally expected{.open = 1, .issues = 2, .total = 3};
        QVERIFY(tallyOf("{'total':3,'issues':2,'open':1}"_json) == expected);
        QVERIFY(tallyOf("{'issues':2,'x':0,'total':3,'open':1}"_json) == expected);
    }

    void textsAreUnescaped()
    {
        const auto name = [](const QByteArray &raw) {
            return decode<Me>("{'email':'','name':'"_json + raw + "\"}")->name;
        };
        QCOMPARE(name(""), u""_s);
        QCOMPARE(name("\\'\\\\\\/\\b\\f\\n\\r\\t"_json), u"\"\\/\b\f\n\r\t"_s);
        QCOMPARE(name("a\\u0000b"_json), u"a\0b"_s);
        QCOMPARE(name("\\u20AC\\u20ac"_json), u"€€"_s);
        QCOMPARE(name("x\\ud83d\\ude00y"_json), u"x\U0001F600y"_s);
        QCOMPARE(name("\xEF\xBB\xBF"
                      "a"),
                 u"\uFEFFa"_s);
        QCOMPARE(name("\\ufeff"_json), u"\uFEFF"_s);
        QCOMPARE(name("\xC3\xA9 \xE2\x80\xA8 \xF0\x9F\x8F\xA0"), u"é \u2028 \U0001F3E0"_s);
        QCOMPARE(name("a long text of many letters and one \\\\ near its end"),
                 u"a long text of many letters and one \\ near its end"_s);
        QCOMPARE(name(QByteArray(100'000, 'x')), QString(100'000, u'x'));
    }

    void aTextThatComesAgainIsTheSame()
    {
        QByteArray texts;
        for (int number = 0; number < 2'000; ++number)
            texts += "'kind " + QByteArray::number(number % 7) + "','" + QByteArray::number(number) + "',";
        const Decoded<JobArgs> args =
            decode<JobArgs>("{'file_ids':["_json + texts.chopped(1).replace('\'', '"') + "]}");
        QVERIFY(args);
        for (int number = 0; number < 2'000; ++number) {
            QCOMPARE(args->file_ids->at(2 * number), u"kind %1"_s.arg(number % 7));
            QCOMPARE(args->file_ids->at(2 * number + 1), QString::number(number));
        }
    }

    void theErrorNamesThePath_data()
    {
        QTest::addColumn<QByteArray>("files");
        QTest::addColumn<QString>("error");
        const auto row = [](const QByteArray &files, const char *error) {
            QTest::newRow(error) << files << QString::fromLatin1(error);
        };
        row("{'id':'a','status':'new'},{'id':'b'}"_json, "files[1].status: missing");
        row("{'id':1}"_json, "files[0].id: not a string");
        row("7"_json, "files[0]: not an object");
        row("{'id':'a','refs':{}}"_json, "files[0].refs: not a list");
        row("{'id':'a','links':[]}"_json, "files[0].links: not an object");
        row("{'id':'a','received':'today'}"_json, "files[0].received: not a number of 64 bits");
        row("{'id':'a','pages':[{'i':0},{'i':0.5}]}"_json, "files[0].pages[1].i: not an integer of 64 bits");
        row("{'id':'a','pages':[{'i':0,'ocr':1}]}"_json, "files[0].pages[0].ocr: not a boolean");
        row("{'id':'a','pages':[{'i':0,'refs':{'latest':{'px':[1,'x']}}}]}"_json,
            "files[0].pages[0].refs[\"latest\"].px[1]: not a number of 64 bits");
    }

    void theErrorNamesThePath()
    {
        QFETCH(QByteArray, files);
        const Decoded<BoardState> board = decode<BoardState>(boardWith(files));
        QVERIFY(!board);
        QTEST(board.error.text(), "error");
    }

    void theErrorOfTheWholeDocumentHasNoPath()
    {
        QCOMPARE(decode<Me>("[]").error.text(), u"not an object"_s);
        QCOMPARE(decode<Me>("{}").error.text(), u"email: missing"_s);
        QVERIFY(decode<Me>("").error.path.isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestDecode)
#include "tst_decode.moc"
