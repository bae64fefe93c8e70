#include "symbols.h"

#include <QTest>

using namespace vexal;
using namespace Qt::StringLiterals;

class TestSymbols : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySymbolOfTheProductIsThere();
    void everySymbolLiesInItsBox();
    void anUnknownSymbolIsNone();
    void aPathOfOtherCommandsIsRefused_data();
    void aPathOfOtherCommandsIsRefused();
    void aPathIsReadAsWritten();
};

void TestSymbols::everySymbolOfTheProductIsThere()
{
    const QStringList wanted{
        u"arrow.clockwise"_s,
        u"arrow.down.circle.fill"_s,
        u"arrow.down.doc"_s,
        u"arrow.triangle.2.circlepath"_s,
        u"arrow.up.doc"_s,
        u"arrow.uturn.backward"_s,
        u"book.closed"_s,
        u"checkmark"_s,
        u"checkmark.circle.fill"_s,
        u"checkmark.seal"_s,
        u"chevron.down"_s,
        u"chevron.right"_s,
        u"chevron.up"_s,
        u"clock.arrow.circlepath"_s,
        u"doc"_s,
        u"doc.questionmark"_s,
        u"doc.richtext"_s,
        u"ellipsis"_s,
        u"ellipsis.circle"_s,
        u"envelope"_s,
        u"equal.circle"_s,
        u"exclamationmark"_s,
        u"exclamationmark.circle.fill"_s,
        u"exclamationmark.triangle.fill"_s,
        u"folder"_s,
        u"hand.point.up.left.fill"_s,
        u"line.3.horizontal"_s,
        u"mappin.and.ellipse"_s,
        u"minus"_s,
        u"pencil.and.ruler"_s,
        u"plus"_s,
        u"questionmark.circle"_s,
        u"scope"_s,
        u"stop.circle.fill"_s,
        u"text.bubble"_s,
        u"text.bubble.fill"_s,
        u"wifi.exclamationmark"_s,
        u"xmark"_s,
        u"xmark.circle.fill"_s,
    };
    QCOMPARE(symbolNames(), wanted);
    for (const QString &name : wanted)
        QVERIFY2(symbolShape(name) && !symbolShape(name)->path.isEmpty(), qPrintable(name));
}

void TestSymbols::everySymbolLiesInItsBox()
{
    for (const QString &name : symbolNames()) {
        const auto shape = symbolShape(name);
        QVERIFY2(shape, qPrintable(name));
        const qreal half = shape->stroke / 2;
        const QRectF ink = shape->path.boundingRect().adjusted(-half, -half, half, half);
        QVERIFY2(QRectF(0, 0, SymbolShape::kBox, SymbolShape::kBox).contains(ink), qPrintable(name));
    }
}

void TestSymbols::anUnknownSymbolIsNone()
{
    QVERIFY(!symbolShape(u"no.such.symbol"_s));
    QVERIFY(!symbolShape(QString()));
    QVERIFY(!symbolShape(u"# name"_s));
}

void TestSymbols::aPathOfOtherCommandsIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("relative") << u"m 1 2"_s;
    QTest::newRow("arc") << u"M 0 0 A 1 1 0 0 0 2 2"_s;
    QTest::newRow("too few numbers") << u"M 1"_s;
    QTest::newRow("not a number") << u"M 1 x"_s;
    QTest::newRow("a number too many") << u"M 1 2 3"_s;
}

void TestSymbols::aPathOfOtherCommandsIsRefused()
{
    QFETCH(QString, text);
    QVERIFY(!parsedPath(text));
}

void TestSymbols::aPathIsReadAsWritten()
{
    const auto path = parsedPath(u"M 0 0 L 4 0 C 4 2 2 4 0 4 Z");
    QVERIFY(path);
    QCOMPARE(path->boundingRect(), QRectF(0, 0, 4, 4));
    QCOMPARE(path->elementCount(), 6); // move, line, three of the curve, the line that closes
}

QTEST_GUILESS_MAIN(TestSymbols)
#include "test_symbols.moc"
