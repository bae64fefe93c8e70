#include "appearance.h"
#include "faces.h"
#include "facts.h"
#include "shadow.h"
#include "status.h"
#include "typeface.h"

#include <QFontInfo>
#include <QImage>
#include <QQmlEngine>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace vexal;
using namespace Qt::StringLiterals;

class TestPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStatusSaysWhereAFileStands_data();
    void aStatusSaysWhereAFileStands();
    void initialsAreThoseOfTheFirstAndTheLastWord_data();
    void initialsAreThoseOfTheFirstAndTheLastWord();
    void aFactThatIsWrittenFromTheRightTurnsNothingElse();
    void aFaceKeepsItsColourAndWhiteIsReadableOnIt();
    void aShadowIsDarkestUnderItsPanelAndEndsAtItsMargin();
    void theTypefaceHasItsWeights();
    void aFractionOfAPointIsRounded();
    void eachEngineHasItsOwnAppearance();
    void aChangeOfAppearanceIsToldOnce();
    void theStandardAnimationRushesAndThenSettles();
};

void TestPieces::aStatusSaysWhereAFileStands_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("tone");
    QTest::newRow("new") << u"new"_s << u"New"_s << int(Tone::Accent);
    QTest::newRow("in review") << u"in_review"_s << u"In review"_s << int(Tone::LookAt);
    QTest::newRow("reviewed") << u"reviewed"_s << u"Reviewed"_s << int(Tone::Reviewed);
    QTest::newRow("unknown") << u"archived"_s << u"Reviewed"_s << int(Tone::Reviewed);
    QTest::newRow("none") << QString() << u"Reviewed"_s << int(Tone::Reviewed);
    QTest::newRow("other case") << u"New"_s << u"Reviewed"_s << int(Tone::Reviewed);
}

void TestPieces::aStatusSaysWhereAFileStands()
{
    QFETCH(QString, status);
    const StatusLook look = statusLook(status);
    QTEST(look.title, "title");
    QTEST(int(look.tone), "tone");
}

void TestPieces::initialsAreThoseOfTheFirstAndTheLastWord_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("letters");
    QTest::newRow("one word") << u"Mira"_s << u"M"_s;
    QTest::newRow("two words") << u"Ada Lindqvist"_s << u"AL"_s;
    QTest::newRow("three words") << u"Ada von Lindqvist"_s << u"AL"_s;
    QTest::newRow("lower case") << u"ada lindqvist"_s << u"AL"_s;
    QTest::newRow("blanks") << u"  Teo  "_s << u"T"_s;
    QTest::newRow("a letter of two units") << u"\U00010428ed"_s << u"\U00010400"_s;
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("only blanks") << u"   "_s << QString();
}

void TestPieces::initialsAreThoseOfTheFirstAndTheLastWord()
{
    QFETCH(QString, name);
    QTEST(initials(name), "letters");
}

void TestPieces::aFactThatIsWrittenFromTheRightTurnsNothingElse()
{
    QCOMPARE(joinedFacts({u"a"_s, QString(), u"b"_s}), u"a · b"_s);
    QCOMPARE(joinedFacts({u"a"_s, u"\u05d0\u05d1"_s, u"b"_s}), u"a · \u2068\u05d0\u05d1\u2069 · b"_s);
    QCOMPARE(isolated(u"x\u202ey"_s), u"\u2068x\u202ey\u2069"_s);
}

void TestPieces::aFaceKeepsItsColourAndWhiteIsReadableOnIt()
{
    QSet<QRgb> seen;
    for (int i = 0; i < 100; ++i) {
        const QString email = u"person%1@lanternhouse.example"_s.arg(i);
        QCOMPARE(faceColour(email), faceColour(email));
        QVERIFY(contrast(Qt::white, faceColour(email)) >= 4.5);
        seen.insert(faceColour(email).rgb());
    }
    QCOMPARE(seen.size(), 6);
    QCOMPARE(faceColour(u"mira@lanternhouse.example"_s).rgb(), QRgb(0xFF8A6A2F));
}

void TestPieces::aShadowIsDarkestUnderItsPanelAndEndsAtItsMargin()
{
    const QColor shade = QColor::fromRgbF(0, 0, 0, 0.5F);
    const QImage picture = shadowPicture({60, 40}, 8, 12, shade);
    const int margin = shadowMargin(12);
    QCOMPARE(picture.size(), QSize(60 + 2 * margin, 40 + 2 * margin));
    const int middle = qAlpha(picture.pixel(picture.rect().center()));
    QVERIFY2(middle >= 125 && middle <= 128, qPrintable(QString::number(middle)));
    const int edge = qAlpha(picture.pixel(margin, picture.height() / 2));
    QVERIFY2(edge > 45 && edge < 80, qPrintable(QString::number(edge)));
    QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(picture.pixel(0, picture.height() / 2)), 0);
    for (int x = 0; x < picture.width(); ++x) {
        const int here = qAlpha(picture.pixel(x, margin));
        const int opposite = qAlpha(picture.pixel(picture.width() - 1 - x, picture.height() - 1 - margin));
        QVERIFY(qAbs(here - opposite) <= 1);
    }
}

void TestPieces::theStandardAnimationRushesAndThenSettles()
{
    const QEasingCurve curve = Appearance::curve();
    QCOMPARE(curve.valueForProgress(0), 0.0);
    QCOMPARE(curve.valueForProgress(1), 1.0);
    QVERIFY(curve.valueForProgress(0.2) > 0.6);
    QVERIFY(curve.valueForProgress(0.6) > 0.95);
}

void TestPieces::theTypefaceHasItsWeights()
{
    applyTypeface(*qGuiApp, Typeface::Ours);
    for (const QFont::Weight weight : {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold}) {
        const QFontInfo found(face(13, weight));
        QVERIFY2(found.family().startsWith("Inter"_L1), qPrintable(found.family()));
        QCOMPARE(found.weight(), int(weight));
    }
}

void TestPieces::aFractionOfAPointIsRounded()
{
    QCOMPARE(face(11.5).pixelSize(), 12);
    QCOMPARE(face(13).pixelSize(), 13);
    QCOMPARE(face(11, QFont::Bold, 0.5).letterSpacing(), 0.5);
}

void TestPieces::eachEngineHasItsOwnAppearance()
{
    QQmlEngine one;
    QQmlEngine other;
    QCOMPARE(&Appearance::of(one), &Appearance::of(one));
    QVERIFY(&Appearance::of(one) != &Appearance::of(other));
    Appearance::of(one).setDark(true);
    QVERIFY(!Appearance::of(other).dark());
}

void TestPieces::aChangeOfAppearanceIsToldOnce()
{
    QQmlEngine engine;
    Appearance &appearance = Appearance::of(engine);
    QSignalSpy told(&appearance, &Appearance::darkChanged);
    appearance.setDark(true);
    appearance.setDark(true);
    QCOMPARE(told.count(), 1);
}

QTEST_MAIN(TestPieces)
#include "test_pieces.moc"
