#include "displayname.h"

#include "boards.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

class TestDisplayName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAnAddressItIsTheAgent()
    {
        const BoardState board = aBoard();
        QCOMPARE(displayName(std::nullopt, &board), u"Claude"_s);
        QCOMPARE(displayName(std::nullopt, nullptr), u"Claude"_s);
    }

    void onesOwnAddressIsYou()
    {
        BoardState board = aBoard();
        board.users = {aPerson(u"ada@lanternhouse.example"_s, u"Ada Byron"_s)};
        QCOMPARE(displayName(u"ada@lanternhouse.example"_s, &board), u"You"_s);
    }

    void withoutABoardOnesOwnAddressIsLikeAnyOther()
    {
        QCOMPARE(displayName(u"ada@lanternhouse.example"_s, nullptr), u"Ada"_s);
    }

    void aPersonOfTheBoardGoesByTheFirstName()
    {
        BoardState board = aBoard();
        board.users = {aPerson(u"gb@lanternhouse.example"_s, u"Grace Brewster Hopper"_s)};
        QCOMPARE(displayName(u"gb@lanternhouse.example"_s, &board), u"Grace"_s);
    }

    void addressesAreComparedExactly()
    {
        BoardState board = aBoard();
        board.users = {aPerson(u"gb@lanternhouse.example"_s, u"Grace Hopper"_s)};
        QCOMPARE(displayName(u"GB@lanternhouse.example"_s, &board), u"Gb"_s);
        QCOMPARE(displayName(u"Ada@lanternhouse.example"_s, &board), u"Ada"_s);
    }

    void ofTwoPeopleWithOneAddressTheFirstCounts()
    {
        BoardState board = aBoard();
        board.users = {aPerson(u"x@y"_s, u"Grace Hopper"_s), aPerson(u"x@y"_s, u"Mary Shelley"_s)};
        QCOMPARE(displayName(u"x@y"_s, &board), u"Grace"_s);
    }

    void anUnknownAddressTellsItsFirstPart_data()
    {
        QTest::addColumn<QString>("email");
        QTest::addColumn<QString>("name");
        QTest::newRow("a local part") << u"sam@x.org"_s << u"Sam"_s;
        QTest::newRow("a dot parts no words") << u"sam.lee@x.org"_s << u"Sam.lee"_s;
        QTest::newRow("no sign") << u"sam.lee"_s << u"Sam.lee"_s;
        QTest::newRow("an empty local part is dropped") << u"@x.org"_s << u"X.org"_s;
        QTest::newRow("two signs") << u"sam@lee@x.org"_s << u"Sam"_s;
        QTest::newRow("nothing but signs stays") << u"@@"_s << u"@@"_s;
        QTest::newRow("nothing at all stays") << u""_s << u""_s;
    }

    void anUnknownAddressTellsItsFirstPart()
    {
        QFETCH(QString, email);
        const BoardState board = aBoard();
        QTEST(displayName(email, &board), "name");
        QTEST(displayName(email, nullptr), "name");
    }

    void capitals_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("told");
        QTest::newRow("small letters") << u"sam"_s << u"Sam"_s;
        QTest::newRow("capitals") << u"SAM LEE"_s << u"Sam Lee"_s;
        QTest::newRow("blanks stay") << u" sam  lee "_s << u" Sam  Lee "_s;
        QTest::newRow("only blanks part words") << u"sam-lee_o'neil\tx"_s << u"Sam-lee_o'neil\tx"_s;
        QTest::newRow("a digit is no letter") << u"3rd 42"_s << u"3Rd 42"_s;
        QTest::newRow("umlauts") << u"ärger ÜBER"_s << u"Ärger Über"_s;
        QTest::newRow("a letter without a capital") << u"ßam"_s << u"ßam"_s;
        QTest::newRow("a letter of two") << u"ǆep"_s << u"ǅep"_s;
        QTest::newRow("Greek") << u"ΟΔΥΣΣΕΑ"_s << u"Οδυσσεα"_s;
        QTest::newRow("beyond sixteen bits") << u"\U00010428\U00010400"_s << u"\U00010400\U00010428"_s;
        QTest::newRow("a combining accent") << u"e\u0301va"_s << u"E\u0301va"_s;
        QTest::newRow("no letters of both cases") << u"山田"_s << u"山田"_s;
    }

    void capitals()
    {
        QFETCH(QString, text);
        QTEST(capitalised(text), "told");
    }
};

QTEST_GUILESS_MAIN(TestDisplayName)
#include "tst_displayname.moc"
