#include "appicon.h"

#include <QTest>
#include <QXmlStreamReader>

using namespace vexal;

namespace {

bool near(QColor a, QColor b)
{
    return qAbs(a.red() - b.red()) < 3 && qAbs(a.green() - b.green()) < 3 && qAbs(a.blue() - b.blue()) < 3;
}

} // namespace

/// The icon, at every size that a desktop asks for.
class AppIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsAsLargeAsAsked_data() { sizes(); }
    void itIsAsLargeAsAsked();
    void theCornersAreClear_data() { sizes(); }
    void theCornersAreClear();
    void oursIsFilledAndTheirsIsOutlined_data() { sizes(); }
    void oursIsFilledAndTheirsIsOutlined();
    void aClearGapIsBetweenTheHalves_data() { sizes(); }
    void aClearGapIsBetweenTheHalves();
    void theDocumentIsWellFormedAndHasThreeShapes();

private:
    static void sizes();
};

void AppIconTest::sizes()
{
    QTest::addColumn<int>("side");
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        QTest::addRow("%d", side) << side;
}

void AppIconTest::itIsAsLargeAsAsked()
{
    QFETCH(int, side);
    QCOMPARE(appIcon(side).size(), QSize(side, side));
}

void AppIconTest::theCornersAreClear()
{
    QFETCH(int, side);
    const QImage icon = appIcon(side);
    for (const QPoint corner : {QPoint(0, 0), QPoint(side - 1, 0), QPoint(0, side - 1), QPoint(side - 1, side - 1)})
        QCOMPARE(icon.pixelColor(corner).alpha(), 0);
}

void AppIconTest::oursIsFilledAndTheirsIsOutlined()
{
    QFETCH(int, side);
    const QImage icon = appIcon(side);
    const int reach = qRound(side * 0.15);
    QVERIFY(near(icon.pixelColor(side / 2 - reach, side / 2), QColor(0xE4572E)));
    QVERIFY(near(icon.pixelColor(side / 2 + reach, side / 2), Qt::white));
    bool outlined = false;
    for (int x = side / 2; x < side; ++x)
        outlined = outlined || icon.pixelColor(x, side / 2).lightness() < 100;
    QVERIFY(outlined);
}

void AppIconTest::aClearGapIsBetweenTheHalves()
{
    QFETCH(int, side);
    const QImage icon = appIcon(side);
    QVERIFY(near(icon.pixelColor(side / 2 - 1, side / 2), Qt::white));
    QVERIFY(near(icon.pixelColor(side / 2, side / 2), Qt::white));
}

void AppIconTest::theDocumentIsWellFormedAndHasThreeShapes()
{
    QXmlStreamReader svg(appIconSvg());
    int shapes = 0;
    while (!svg.atEnd()) {
        if (svg.readNext() == QXmlStreamReader::StartElement && svg.name() == QLatin1StringView("path"))
            ++shapes;
    }
    QVERIFY2(!svg.hasError(), qPrintable(svg.errorString()));
    QCOMPARE(shapes, 3);
}

QTEST_APPLESS_MAIN(AppIconTest)
#include "tst_appicon.moc"
