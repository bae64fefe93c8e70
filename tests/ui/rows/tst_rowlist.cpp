#include "rowlist.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QString key;
    QString text;
    bool operator==(const Row &) const = default;
};

using Rows = vexal::RowList<Row>;

QList<Row> rowsOf(const QString &keys)
{
    QList<Row> rows;
    for (QChar key : keys)
        rows.append({key, key});
    return rows;
}

QString keysOf(const Rows &list)
{
    QString keys;
    for (const Row &row : list.rows())
        keys += row.key;
    return keys;
}

struct Spies
{
    explicit Spies(Rows &list)
        : inserted(&list, &Rows::rowsInserted)
        , removed(&list, &Rows::rowsRemoved)
        , moved(&list, &Rows::rowsMoved)
        , changed(&list, &Rows::dataChanged)
        , reset(&list, &Rows::modelReset)
    {
    }
    QSignalSpy inserted, removed, moved, changed, reset;
};

} // namespace

class RowListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSameRowsAgainSayNothing();
    void aChangedRowIsUpdatedInItsPlace();
    void aRowThatMovesDownIsOneMove();
    void aRowThatMovesUpIsOneMove();
    void newRowsComeInOneGroup();
    void goneRowsLeaveInOneGroup();
    void theFirstOfTwoRowsWithOneKeyCounts();
    void aReversedLongListIsReset();
    void anyListBecomesAnyOther();
};

void RowListTest::theSameRowsAgainSayNothing()
{
    Rows list;
    list.setRows(rowsOf(u"abc"_s));
    Spies spies(list);
    list.setRows(rowsOf(u"abc"_s));
    QCOMPARE(spies.inserted.size() + spies.removed.size() + spies.moved.size() + spies.changed.size(), 0);
    QCOMPARE(spies.reset.size(), 0);
}

void RowListTest::aChangedRowIsUpdatedInItsPlace()
{
    Rows list;
    list.setRows(rowsOf(u"abc"_s));
    Spies spies(list);
    auto rows = rowsOf(u"abc"_s);
    rows[1].text = u"new"_s;
    list.setRows(rows);
    QCOMPARE(spies.changed.size(), 1);
    QCOMPARE(spies.changed[0][0].toModelIndex().row(), 1);
    QCOMPARE(spies.changed[0][1].toModelIndex().row(), 1);
    QCOMPARE(list.data(list.index(1), Rows::rowRole).value<Row>().text, u"new"_s);
}

void RowListTest::aRowThatMovesDownIsOneMove()
{
    Rows list;
    list.setRows(rowsOf(u"abcdefgh"_s));
    Spies spies(list);
    list.setRows(rowsOf(u"acdefgbh"_s));
    QCOMPARE(keysOf(list), u"acdefgbh"_s);
    QCOMPARE(spies.moved.size(), 1);
    QCOMPARE(spies.inserted.size() + spies.removed.size() + spies.reset.size(), 0);
}

void RowListTest::aRowThatMovesUpIsOneMove()
{
    Rows list;
    list.setRows(rowsOf(u"abcdefgh"_s));
    Spies spies(list);
    list.setRows(rowsOf(u"agbcdefh"_s));
    QCOMPARE(keysOf(list), u"agbcdefh"_s);
    QCOMPARE(spies.moved.size(), 1);
}

void RowListTest::newRowsComeInOneGroup()
{
    Rows list;
    list.setRows(rowsOf(u"ad"_s));
    Spies spies(list);
    list.setRows(rowsOf(u"abcd"_s));
    QCOMPARE(keysOf(list), u"abcd"_s);
    QCOMPARE(spies.inserted.size(), 1);
}

void RowListTest::goneRowsLeaveInOneGroup()
{
    Rows list;
    list.setRows(rowsOf(u"abcd"_s));
    Spies spies(list);
    list.setRows(rowsOf(u"ad"_s));
    QCOMPARE(keysOf(list), u"ad"_s);
    QCOMPARE(spies.removed.size(), 1);
}

void RowListTest::theFirstOfTwoRowsWithOneKeyCounts()
{
    Rows list;
    list.setRows({{u"a"_s, u"first"_s}, {u"b"_s, u"b"_s}, {u"a"_s, u"second"_s}});
    QCOMPARE(list.rowCount(), 2);
    QCOMPARE(list.rows()[0].text, u"first"_s);
}

void RowListTest::aReversedLongListIsReset()
{
    Rows list;
    QList<Row> rows;
    for (int i = 0; i < 1000; ++i)
        rows.append({QString::number(i), {}});
    list.setRows(rows);
    Spies spies(list);
    std::reverse(rows.begin(), rows.end());
    list.setRows(rows);
    QCOMPARE(spies.reset.size(), 1);
    QCOMPARE(list.rows(), rows);
}

void RowListTest::anyListBecomesAnyOther()
{
    QRandomGenerator random(7);
    Rows list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::QtTest);
    for (int round = 0; round < 500; ++round) {
        QList<Row> rows;
        for (int i = 0, count = random.bounded(30); i < count; ++i)
            rows.append({QString(QChar(u'a' + random.bounded(26))), QString::number(random.bounded(3))});
        QList<Row> expected;
        for (const Row &row : rows) {
            if (std::none_of(expected.cbegin(), expected.cend(), [&row](const Row &one) { return one.key == row.key; }))
                expected.append(row);
        }
        list.setRows(rows);
        QCOMPARE(list.rows(), expected);
    }
}

QTEST_GUILESS_MAIN(RowListTest)
#include "tst_rowlist.moc"
