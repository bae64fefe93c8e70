#include "passage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

class PassageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWordsThatDifferAreMarked_data();
    void theWordsThatDifferAreMarked();
    void aLongTextKeepsTheSurroundingsOfWhatChanged();
    void aCharacterOfTwoUnitsIsNotCutInHalf();
};

void PassageTest::theWordsThatDifferAreMarked_data()
{
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    QTest::addColumn<QString>("oursChanged");
    QTest::addColumn<QString>("theirsChanged");
    const auto row = [](const char *name, const QString &ours, const QString &theirs, const QString &oursChanged,
                        const QString &theirsChanged) {
        QTest::newRow(name) << ours << theirs << oursChanged << theirsChanged;
    };
    row("a word at the end", u"lit every lantern"_s, u"lit every lantem"_s, u"lantern"_s, u"lantem"_s);
    row("a word at the beginning", u"five rows of six."_s, u"fife rows of six."_s, u"five"_s, u"fife"_s);
    row("in the middle", u"asleep in the tall grass."_s, u"asleep in the long grass."_s, u"tall"_s, u"long"_s);
    row("a lost full stop", u"planted again."_s, u"planted again"_s, u"again."_s, u"again"_s);
    row("a word more", u"Far below"_s, u"Far far below"_s, u""_s, u"far"_s);
    row("a word less", u"C M Y K + Gold 871-L"_s, u"C M Y K"_s, u"+ Gold 871-L"_s, u""_s);
    row("one word in two", u"Lighthouse Songs"_s, u"Light house Songs"_s, u"Lighthouse"_s, u"Light house"_s);
    row("everything", u"one"_s, u"two"_s, u"one"_s, u"two"_s);
    row("nothing", u"the same"_s, u"the same"_s, u""_s, u""_s);
    row("from nothing", u""_s, u"something"_s, u""_s, u"something"_s);
    row("a word that is repeated", u"the the fox"_s, u"the fox"_s, u"the"_s, u""_s);
    row("digits of a number", u"2004061822579"_s, u"2004061822517"_s, u"79"_s, u"17"_s);
    row("digits after words", u"4 0061 82257"_s, u"4 0061 82251"_s, u"7"_s, u"1"_s);
    row("numbers with words", u"5 plates"_s, u"4 plates"_s, u"5"_s, u"4"_s);
    row("a price", u"\u20ac 12.50"_s, u"\u20ac 14.50"_s, u"2"_s, u"4"_s);
    row("letters beside digits", u"card 17b"_s, u"card 18b"_s, u"17b"_s, u"18b"_s);
}

void PassageTest::theWordsThatDifferAreMarked()
{
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    const Passages sides = passages(ours, theirs);
    QCOMPARE(sides.ours.text, ours);
    QCOMPARE(sides.theirs.text, theirs);
    QTEST(sides.ours.changed(), "oursChanged");
    QTEST(sides.theirs.changed(), "theirsChanged");
}

void PassageTest::aLongTextKeepsTheSurroundingsOfWhatChanged()
{
    const QString much = u"word "_s.repeated(2000);
    const Passages sides = passages(much + u"lantern "_s + much, much + u"lantem "_s + much);
    QCOMPARE(sides.ours.changed(), u"lantern"_s);
    QCOMPARE(sides.theirs.changed(), u"lantem"_s);
    for (const QString &text : {sides.ours.text, sides.theirs.text}) {
        QVERIFY(text.size() < 400);
        QVERIFY(text.startsWith(u'…') && text.endsWith(u'…'));
    }
    QVERIFY(passages(much, u"x "_s.repeated(5000)).theirs.text.size() < 800);
}

void PassageTest::aCharacterOfTwoUnitsIsNotCutInHalf()
{
    for (int before = 0; before < 4; ++before) {
        const QString much = u"x"_s.repeated(before) + u"\U0001F98A"_s.repeated(1000);
        const Passages sides = passages(much + u" one "_s + much, much + u" two "_s + much);
        QVERIFY(sides.ours.text.isValidUtf16());
        QCOMPARE(sides.ours.changed(), u"one"_s);
    }
}

QTEST_MAIN(PassageTest)
#include "tst_passage.moc"
