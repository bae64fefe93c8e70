#include "launchoptions.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

class LaunchOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAShotNothingIsAsked();
    void aShotThatStandsLastCountsAsNotGiven();
    void urlsOfOurSchemeAreTakenFromTheArguments();
    void everyFlagIsRead();
    void flagsAreComparedExactly();
    void theValueFollowsTheFirstOccurrence();
    void aValueMayLookLikeAFlag();
    void aSampleThatStandsLastIsNotGiven();
    void aSizeIsTwoNumbers();
    void emptyPiecesOfASizeAreDropped();
    void aSizeThatIsNotTwoNumbersIsNone_data();
    void aSizeThatIsNotTwoNumbersIsNone();
};

void LaunchOptionsTest::withoutAShotNothingIsAsked()
{
    QVERIFY(!launchOptions({u"--dark"_s, u"--sample"_s, u"folder"_s}));
}

void LaunchOptionsTest::aShotThatStandsLastCountsAsNotGiven()
{
    QVERIFY(!launchOptions({u"--dark"_s, u"--shot"_s}));
}

void LaunchOptionsTest::urlsOfOurSchemeAreTakenFromTheArguments()
{
    const QString callback = u"vexal://signed-in?state=A%2BB&code=4%2F0Ad"_s;
    const QList<QUrl> urls = urlsIn({u"-ServerURL"_s, u"http://127.0.0.1:8123"_s, callback, u"vexal"_s, u"other://x"_s,
                                     QString(), u"VEXAL:second"_s});
    QCOMPARE(QUrl::toStringList(urls, QUrl::FullyEncoded), (QStringList{callback, u"vexal:second"_s}));
    QCOMPARE(urlsIn({}), QList<QUrl>());
}

void LaunchOptionsTest::everyFlagIsRead()
{
    const auto options =
        launchOptions({u"--shot"_s, u"a.png"_s, u"--dark"_s, u"--signin"_s, u"--sample"_s, u"folder"_s, u"--size"_s,
                       u"1440x900"_s, u"--multi"_s, u"--focus"_s, u"--activity"_s, u"--pin"_s});
    QVERIFY(options);
    QCOMPARE(options->shot, u"a.png"_s);
    QVERIFY(options->dark && options->signin && options->multi && options->focus && options->activity && options->pin);
    QCOMPARE(options->sample, u"folder"_s);
    QCOMPARE(options->size, QSizeF(1440, 900));
}

void LaunchOptionsTest::flagsAreComparedExactly()
{
    const auto options =
        launchOptions({u"--shot"_s, u"a.png"_s, u"--Dark"_s, u"--pin=1"_s, u"-multi"_s, u"--focused"_s});
    QVERIFY(options);
    QVERIFY(!options->dark && !options->pin && !options->multi && !options->focus);
}

void LaunchOptionsTest::theValueFollowsTheFirstOccurrence()
{
    const auto options = launchOptions({u"--shot"_s, u"a.png"_s, u"--shot"_s, u"b.png"_s});
    QCOMPARE(options->shot, u"a.png"_s);
}

void LaunchOptionsTest::aValueMayLookLikeAFlag()
{
    const auto options = launchOptions({u"--shot"_s, u"--dark"_s});
    QCOMPARE(options->shot, u"--dark"_s);
    QVERIFY(options->dark);
}

void LaunchOptionsTest::aSampleThatStandsLastIsNotGiven()
{
    QVERIFY(!launchOptions({u"--shot"_s, u"a.png"_s, u"--sample"_s})->sample);
}

void LaunchOptionsTest::aSizeIsTwoNumbers()
{
    QCOMPARE(sizeFromText(u"1440x900"_s), QSizeF(1440, 900));
    QCOMPARE(sizeFromText(u"1440.5x9e2"_s), QSizeF(1440.5, 900));
}

void LaunchOptionsTest::emptyPiecesOfASizeAreDropped()
{
    QCOMPARE(sizeFromText(u"x1440xx900x"_s), QSizeF(1440, 900));
}

void LaunchOptionsTest::aSizeThatIsNotTwoNumbersIsNone_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "x", "1440", "1440x", "1440x900x2", "1440X900", "1440 x 900", "1440x 900", "1440\tx900", "wide x tall",
          "infx900", "1440xnan", "1,440x900", "onexx900", "1440x900xhigh"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void LaunchOptionsTest::aSizeThatIsNotTwoNumbersIsNone()
{
    QFETCH(QString, text);
    QVERIFY(!sizeFromText(text));
}

QTEST_GUILESS_MAIN(LaunchOptionsTest)
#include "tst_launchoptions.moc"
