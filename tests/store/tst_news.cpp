#include "boards.h"
#include "news.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QDateTime began({2025, 11, 18}, {12, 0}, Qt::UTC);
const QString bea = u"bea@lanternhouse.example"_s;

/// What someone does ten seconds after the beginning.
Event anEvent(qint64 id, const std::optional<QString> &by, const QString &kind, const std::optional<QString> &text = {})
{
    Event event;
    event.id = id;
    event.at = double(began.toMSecsSinceEpoch()) + 10'000;
    event.by = by;
    event.kind = kind;
    event.text = text;
    return event;
}

BoardState boardWith(const QList<Event> &events)
{
    BoardState board = aBoard();
    board.users = {aPerson(u"ada@lanternhouse.example"_s, u"Ada Byron"_s), aPerson(bea, u"Bea Moss"_s)};
    board.events = events;
    return board;
}

QList<Event> history(qint64 last)
{
    QList<Event> events;
    for (qint64 id = 1; id <= last; ++id)
        events.append(anEvent(id, bea, u"comment"_s));
    return events;
}

} // namespace

/// What of a new board is told.
class TestNews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBoardWithoutEventsIsNoNews()
    {
        QCOMPARE(newsOf(boardWith({}), 0, began), (News{0, {}}));
        QCOMPARE(newsOf(boardWith({}), 12, began), (News{12, {}}));
    }

    void theFirstBoardIsHistory() { QCOMPARE(newsOf(boardWith(history(40)), 0, began), (News{40, {}})); }

    void theLargestIdCountsWhateverTheOrder()
    {
        const auto events = QList{anEvent(9, bea, u"x"_s), anEvent(3, bea, u"x"_s)};
        QCOMPARE(newsOf(boardWith(events), 0, began).seenEvent, 9);
    }

    void whatIsSeenNeverFalls() { QCOMPARE(newsOf(boardWith(history(3)), 40, began), (News{40, {}})); }

    void ofSeveralTheFirstInTheBoardsOrderIsTold()
    {
        const auto events = QList{anEvent(8, bea, u"comment"_s, u"b"_s), anEvent(6, bea, u"comment"_s, u"a"_s),
                                  anEvent(5, bea, u"comment"_s, u"old"_s), anEvent(7, bea, u"comment"_s, u"c"_s)};
        QCOMPARE(newsOf(boardWith(events), 5, began), (News{8, u"Bea Moss: b"_s}));
    }

    void theFileThatItIsAboutIsNamed()
    {
        Event event = anEvent(2, bea, u"comment"_s, u"Look"_s);
        event.file_id = u"f"_s;
        QCOMPARE(newsOf(boardWith({event}), 1, began), (News{2, u"Bea Moss: Look"_s, u"f"_s}));
    }

    void whatOneDidOneselfIsNoNews()
    {
        const auto events = QList{anEvent(2, u"ada@lanternhouse.example"_s, u"status"_s, u"reviewed"_s)};
        QCOMPARE(newsOf(boardWith(events), 1, began), (News{2, {}}));
    }

    void whatWasBeforeTheBeginningIsNoNews()
    {
        Event event = anEvent(2, bea, u"comment"_s);
        event.at = double(began.toMSecsSinceEpoch());
        QCOMPARE(newsOf(boardWith({event}), 1, began), (News{2, {}}));
        event.at += 0.5;
        QCOMPARE(newsOf(boardWith({event}), 1, began), (News{2, u"Bea Moss: made a change"_s}));
    }

    void theTextTellsWhoAndWhat_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<std::optional<QString>>("by");
        QTest::addColumn<std::optional<QString>>("text");
        QTest::addColumn<QString>("toast");
        using Text = std::optional<QString>;
        const Text none;
        const Text zoe = u"zoe@lanternhouse.example"_s;
        QTest::newRow("someone") << u"comment"_s << Text(bea) << Text(u"Look"_s) << u"Bea Moss: Look"_s;
        QTest::newRow("someone without words") << u"status"_s << Text(bea) << none << u"Bea Moss: made a change"_s;
        QTest::newRow("a stranger") << u"status"_s << zoe << none << u"zoe@lanternhouse.example: made a change"_s;
        QTest::newRow("nobody") << u"comment"_s << none << Text(u"Hello"_s) << u"Hello"_s;
        QTest::newRow("nobody without words") << u"comment"_s << none << none << u"Something new came in."_s;
        for (const char *kind : {"synced", "new_file", "report_ready"}) {
            const QString kindText = QString::fromLatin1(kind);
            QTest::addRow("%s", kind) << kindText << Text(bea) << Text(u"3 proofs"_s) << u"3 proofs"_s;
            QTest::addRow("%s without words", kind) << kindText << Text(bea) << none << u"Something new came in."_s;
        }
    }

    void theTextTellsWhoAndWhat()
    {
        QFETCH(QString, kind);
        QFETCH(std::optional<QString>, by);
        QFETCH(std::optional<QString>, text);
        QFETCH(QString, toast);
        QCOMPARE(newsOf(boardWith({anEvent(2, by, kind, text)}), 1, began).toast, toast);
    }
};

QTEST_GUILESS_MAIN(TestNews)
#include "tst_news.moc"
