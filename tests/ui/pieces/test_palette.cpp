#include "palette.h"

#include <QTest>

#include <cmath>

using namespace vexal;
using namespace Qt::StringLiterals;

namespace {
constexpr qreal kReadable = 4.5;     // body text
constexpr qreal kRecognisable = 3.0; // symbols and outlines
constexpr Role::Value kGrounds[] = {Role::Backdrop, Role::Sidebar, Role::Canvas, Role::Card, Role::Soft};
constexpr Tone::Value kStates[] = {Tone::Accent, Tone::Reviewed, Tone::Issue, Tone::LookAt};

QColor washed(QColor tone, float opacity, const QColor &ground)
{
    tone.setAlphaF(opacity);
    return laidOver(tone, ground);
}

QString worst(qreal found, QStringView what, bool dark)
{
    return u"%1: %2 in %3"_s.arg(what).arg(found, 0, 'f', 2).arg(dark ? u"dark" : u"light");
}
} // namespace

class TestPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrastIsThatOfTheGuidelines();
    void aTranslucentColourIsMixedWithItsGround();
    void everyRoleHasAColour();
    void textIsReadableOnEveryGround_data();
    void textIsReadableOnEveryGround();
    void inkIsReadableOnItsOwnWash_data();
    void inkIsReadableOnItsOwnWash();
    void whiteIsReadableOnASolid_data();
    void whiteIsReadableOnASolid();
    void aStateIsRecognisedOnTheWindow_data();
    void aStateIsRecognisedOnTheWindow();
    void theCardIsLighterThanItsPairInLight();
};

namespace {
void appearances()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}
} // namespace

void TestPalette::contrastIsThatOfTheGuidelines()
{
    QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
    QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
    // The guidelines' own example of a grey that just passes.
    QVERIFY(std::abs(contrast(QColor::fromRgb(0x767676), Qt::white) - 4.54) < 0.01);
}

void TestPalette::aTranslucentColourIsMixedWithItsGround()
{
    QCOMPARE(laidOver(QColor(0, 0, 0, 0), QColor(10, 20, 30)).rgb(), qRgb(10, 20, 30));
    QCOMPARE(laidOver(QColor(100, 0, 0, 255), QColor(10, 20, 30)).rgb(), qRgb(100, 0, 0));
    QCOMPARE(laidOver(QColor::fromRgbF(1, 1, 1, 0.5F), Qt::black).rgb(), qRgb(128, 128, 128));
}

void TestPalette::everyRoleHasAColour()
{
    for (const bool dark : {false, true}) {
        for (int role = 0; role < Role::LastOfRole; ++role)
            QVERIFY2(colour(Role::Value(role), dark).isValid(), qPrintable(QString::number(role)));
        for (int tone = 0; tone < Tone::LastOfTone; ++tone)
            QVERIFY(tint(Tone::Value(tone), dark).plain.isValid());
    }
    QVERIFY(!colour(Role::LastOfRole, false).isValid());
}

void TestPalette::textIsReadableOnEveryGround_data()
{
    appearances();
}

void TestPalette::textIsReadableOnEveryGround()
{
    QFETCH(bool, dark);
    for (const Role::Value ground : kGrounds) {
        const QColor under = colour(ground, dark);
        for (const Role::Value writing : {Role::Text, Role::Secondary, Role::Tertiary}) {
            const qreal found = contrast(laidOver(colour(writing, dark), under), under);
            QVERIFY2(found >= kReadable, qPrintable(worst(found, QString::number(writing), dark)));
        }
    }
    const QColor toast = colour(Role::Toast, dark);
    QVERIFY(contrast(colour(Role::ToastText, dark), toast) >= kReadable);
    QVERIFY(contrast(colour(Role::ToastAction, dark), toast) >= kReadable);
    QVERIFY(contrast(colour(Role::OnPaper, dark), colour(Role::Paper, dark)) >= kReadable);
    const QColor chosen = washed(tint(Tone::Accent, dark).plain, 0.55F, colour(Role::Sidebar, dark));
    QVERIFY(contrast(laidOver(colour(Role::Chosen, dark), chosen), chosen) >= kReadable);
}

void TestPalette::inkIsReadableOnItsOwnWash_data()
{
    appearances();
}

void TestPalette::inkIsReadableOnItsOwnWash()
{
    QFETCH(bool, dark);
    for (const Tone::Value tone : kStates) {
        const Tint colours = tint(tone, dark);
        for (const Role::Value ground : {Role::Backdrop, Role::Sidebar, Role::Card}) {
            const QColor wash = washed(colours.plain, 0.12F, colour(ground, dark));
            const qreal found = contrast(colours.ink, wash);
            QVERIFY2(found >= kReadable, qPrintable(worst(found, QString::number(tone), dark)));
        }
    }
}

void TestPalette::whiteIsReadableOnASolid_data()
{
    appearances();
}

void TestPalette::whiteIsReadableOnASolid()
{
    QFETCH(bool, dark);
    for (const Tone::Value tone : kStates) {
        const qreal found = contrast(colour(Role::OnSolid, dark), tint(tone, dark).solid);
        QVERIFY2(found >= kReadable - 0.05, qPrintable(worst(found, QString::number(tone), dark)));
    }
}

void TestPalette::aStateIsRecognisedOnTheWindow_data()
{
    appearances();
}

void TestPalette::aStateIsRecognisedOnTheWindow()
{
    QFETCH(bool, dark);
    for (const Tone::Value tone : kStates) {
        const qreal found = contrast(tint(tone, dark).plain, colour(Role::Backdrop, dark));
        QVERIFY2(found >= kRecognisable, qPrintable(worst(found, QString::number(tone), dark)));
    }
}

void TestPalette::theCardIsLighterThanItsPairInLight()
{
    QCOMPARE(colour(Role::Card, false).rgb(), QRgb(0xFFFBFBFA));
    QCOMPARE(colour(Role::Canvas, false).rgb(), QRgb(0xFFE9EBEC));
    QCOMPARE(colour(Role::Canvas, true), colour(Role::Backdrop, true));
}

QTEST_GUILESS_MAIN(TestPalette)
#include "test_palette.moc"
