#include "derived.h"

#include <QTest>

#include <limits>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {

using Text = std::optional<QString>;

FileItem named(const Text &title, const Text &component, const Text &filename)
{
    return {.title = title, .component = component, .filename = filename};
}

} // namespace

class TestDerived : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aTextOfTenThousandCharactersIsShownWhole()
    {
        for (const QString &character : {u"a"_s, u"ü"_s, u"🦊"_s, u"ש"_s}) {
            const QString text = character.repeated(10'000);
            QCOMPARE(shownText(text), text);
        }
        QCOMPARE(shownText(std::optional<QString>()), QString());
    }

    void aLongerTextEndsInAnEllipsisAfterAWholeCharacter()
    {
        const QString longer = shownText(QString(1'000'000, u'a'));
        QCOMPARE(longer, QString(longestShown, u'a') + u'…');
        const QString foxes = shownText(u'a' + u"🦊"_s.repeated(longestShown));
        QCOMPARE(foxes, u'a' + u"🦊"_s.repeated(longestShown / 2 - 1) + u'…');
    }

    void whereThereIsOneLineATextHasBlanksForItsBreaks()
    {
        QCOMPARE(shownLine(u"Ostrel\nPrint\r\u2028and\u2029Sons"_s), u"Ostrel Print  and Sons"_s);
        QCOMPARE(supplierName({.supplier = u"Ostrel\nPrint"_s}), u"Ostrel Print"_s);
        QCOMPARE(displayTitle(named(u"Moth\nCarnival"_s, u"Box"_s, {})), u"Moth Carnival Box"_s);
        QCOMPARE(pageLabel({.i = 0, .label = u"i\nii"_s}), u"i ii"_s);
    }

    void aFileComesFromItsSupplierByName()
    {
        QCOMPARE(supplierName({.supplier = u"Ostrel Print"_s}), u"Ostrel Print"_s);
        QCOMPARE(supplierName({.supplier = u""_s}), u"Supplier"_s);
        QCOMPARE(supplierName({}), u"Supplier"_s);
    }

    void theFirstFindingOfHighSeverityCounts()
    {
        FileDetail detail;
        QCOMPARE(firstHigh(detail), nullptr);
        detail.findings = {{.id = u"a"_s, .severity = u"low"_s},
                           {.id = u"b"_s, .severity = u"high"_s},
                           {.id = u"c"_s, .severity = u"high"_s}};
        QCOMPARE(firstHigh(detail)->id, u"b"_s);
    }

    void whatWasExpectedOrPassedIsSettledWhateverItsState()
    {
        QVERIFY(isSettled({.kind = u"expected"_s, .state = u"open"_s}));
        QVERIFY(isSettled({.kind = u"pass"_s, .state = u"issue"_s}));
        QVERIFY(!isSettled({.kind = u"words"_s, .state = u"fine"_s}));
    }

    void aFileHasNoPagesBelowNone()
    {
        QCOMPARE(pageCount({.page_count = 16}), 16);
        QCOMPARE(pageCount({.page_count = 0}), 0);
        QCOMPARE(pageCount({.page_count = -1}), std::nullopt);
        QCOMPARE(pageCount({.page_count = std::numeric_limits<qint64>::min()}), std::nullopt);
        QCOMPARE(pageCount({}), std::nullopt);
    }

    void aFileIsCalledByTitleAndComponent()
    {
        QCOMPARE(displayTitle(named(u"Owls"_s, u"Box"_s, u"a.pdf"_s)), u"Owls Box"_s);
        QCOMPARE(displayTitle(named(u"Owls"_s, {}, u"a.pdf"_s)), u"Owls"_s);
        QCOMPARE(displayTitle(named({}, u"Box"_s, u"a.pdf"_s)), u"Box"_s);
    }

    void aFileWithoutThemIsCalledByItsFileName()
    {
        QCOMPARE(displayTitle(named({}, {}, u"a.pdf"_s)), u"a.pdf"_s);
        QCOMPARE(displayTitle(named(u""_s, {}, u"a.pdf"_s)), u"a.pdf"_s);
        QCOMPARE(displayTitle(named({}, u""_s, u"a.pdf"_s)), u"a.pdf"_s);
        QCOMPARE(displayTitle(named({}, {}, u""_s)), u""_s);
    }

    void aFileWithoutAnyNameIsUntitled()
    {
        QCOMPARE(displayTitle(named({}, {}, {})), u"Untitled file"_s);
        QCOMPARE(displayTitle(named(u""_s, {}, {})), u"Untitled file"_s);
    }

    /// Only what is absent is left out: two empty parts are joined like any others, and that text is not empty.
    void anEmptyPartIsStillJoined()
    {
        QCOMPARE(displayTitle(named(u"Owls"_s, u""_s, u"a.pdf"_s)), u"Owls "_s);
        QCOMPARE(displayTitle(named(u""_s, u"Box"_s, u"a.pdf"_s)), u" Box"_s);
        QCOMPARE(displayTitle(named(u""_s, u""_s, u"a.pdf"_s)), u" "_s);
    }

    void ourFileIsTheFirstOfExactlyThatRole()
    {
        const FileItem file{.refs = {{{.role = u"latest"_s, .name = u"1"_s},
                                      {.role = u"submitted"_s, .name = u"2"_s},
                                      {.role = u"submitted"_s, .name = u"3"_s}}}};
        QCOMPARE(ourFile(file, u"submitted")->name, u"2"_s);
        QCOMPARE(ourFile(file, u"latest")->name, u"1"_s);
        QCOMPARE(ourFile(file, u"Latest"), nullptr);
        QCOMPARE(ourFile(file, u"lat"), nullptr);
        QCOMPARE(ourFile(file, u""), nullptr);
    }

    void aFileWithoutRefsHasNoFileOfOurs()
    {
        const FileItem absent;
        QCOMPARE(ourFile(absent, u"latest"), nullptr);
        const FileItem empty{.refs = QList<Ref>()};
        QCOMPARE(ourFile(empty, u"latest"), nullptr);
    }

    void theAspectIsThatOfThePicture()
    {
        QCOMPARE(aspect({.w = 1.0, .h = 1.0, .px = {{1000, 2000}}}), 0.5);
        QCOMPARE(aspect({.px = {{0, 2000}}}), 0.0);
    }

    void theAspectIsThatOfThePaperWhereThePictureHasNone()
    {
        const std::optional<double> w = 3.0;
        const std::optional<double> h = 4.0;
        QCOMPARE(aspect({.w = w, .h = h}), 0.75);
        QCOMPARE(aspect({.w = w, .h = h, .px = QList<double>()}), 0.75);
        QCOMPARE(aspect({.w = w, .h = h, .px = {{1000}}}), 0.75);
        QCOMPARE(aspect({.w = w, .h = h, .px = {{1000, 2000, 3}}}), 0.75);
        QCOMPARE(aspect({.w = w, .h = h, .px = {{1000, 0}}}), 0.75);
        QCOMPARE(aspect({.w = w, .h = h, .px = {{1000, -2000}}}), 0.75);
    }

    void theAspectIsCommonWhereNeitherIsKnown()
    {
        QCOMPARE(aspect({}), 0.77);
        QCOMPARE(aspect({.w = 3.0}), 0.77);
        QCOMPARE(aspect({.h = 4.0}), 0.77);
        QCOMPARE(aspect({.w = 3.0, .h = 0.0}), 0.77);
        QCOMPARE(aspect({.w = 3.0, .h = -4.0}), 0.77);
    }

    void aPageIsCalledByItsLabelOrByItsNumberFromOne()
    {
        QCOMPARE(pageLabel({.i = 3, .label = u"iv"_s}), u"iv"_s);
        QCOMPARE(pageLabel({.i = 3, .label = u" "_s}), u" "_s);
        QCOMPARE(pageLabel({.i = 3, .label = u""_s}), u"4"_s);
        QCOMPARE(pageLabel({.i = 0}), u"1"_s);
        QCOMPARE(pageLabel({.i = -1}), u"0"_s);
        QCOMPARE(pageLabel({.i = -5}), u"-4"_s);
        QCOMPARE(pageLabel({.i = std::numeric_limits<qint64>::max()}), u"9223372036854775808"_s);
    }

    void aFirstNameIsTheFirstWordBetweenBlanks()
    {
        QCOMPARE(firstName({.name = u"Mira Lindqvist"_s}), u"Mira"_s);
        QCOMPARE(firstName({.name = u"Mira"_s}), u"Mira"_s);
        QCOMPARE(firstName({.name = u"  Mira   Lindqvist "_s}), u"Mira"_s);
        QCOMPARE(firstName({.name = u"Mira\tA\u00A0B\nC D"_s}), u"Mira\tA\u00A0B\nC"_s);
    }

    void aNameWithoutWordsIsShownWhole()
    {
        QCOMPARE(firstName({.name = u""_s}), u""_s);
        QCOMPARE(firstName({.name = u"   "_s}), u"   "_s);
    }
};

QTEST_APPLESS_MAIN(TestDerived)
#include "tst_derived.moc"
