#include "actions.h"

#include <QKeySequence>
#include <QSet>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// What can be asked for by a key, and who answers.
class ActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anActionThatNobodyAnswersIsDisabled();
    void theOneThatCameLastAnswers();
    void aPlaceThatIsGoneAnswersNoMore();
    void thePlaceMayOutliveTheTable();
    void noSequenceIsTakenTwice();
};

void ActionsTest::anActionThatNobodyAnswersIsDisabled()
{
    Action action(u"Turn"_s, {u"Ctrl+T"_s}, {}, Action::Held::AsksOnce, nullptr);
    QSignalSpy changes(&action, &Action::enabledChanged);
    QVERIFY(!action.enabled());
    action.trigger();
    OnAction place;
    place.setEnabled(false);
    place.setAction(&action);
    QVERIFY(!action.enabled());
    place.setEnabled(true);
    QVERIFY(action.enabled());
    QCOMPARE(changes.size(), 1);
}

void ActionsTest::theOneThatCameLastAnswers()
{
    Action action(u"Turn"_s, {u"Ctrl+T"_s}, {}, Action::Held::AsksOnce, nullptr);
    OnAction first;
    first.setAction(&action);
    OnAction second;
    second.setAction(&action);
    QSignalSpy atFirst(&first, &OnAction::triggered);
    QSignalSpy atSecond(&second, &OnAction::triggered);
    action.trigger();
    QCOMPARE(atFirst.size(), 0);
    QCOMPARE(atSecond.size(), 1);
    second.setEnabled(false);
    action.trigger();
    QCOMPARE(atFirst.size(), 1);
}

void ActionsTest::aPlaceThatIsGoneAnswersNoMore()
{
    Action action(u"Turn"_s, {u"Ctrl+T"_s}, {}, Action::Held::AsksOnce, nullptr);
    {
        OnAction place;
        place.setAction(&action);
        QVERIFY(action.enabled());
    }
    QVERIFY(!action.enabled());
    action.trigger();
}

void ActionsTest::thePlaceMayOutliveTheTable()
{
    OnAction place;
    {
        Action action(u"Turn"_s, {u"Ctrl+T"_s}, {}, Action::Held::AsksOnce, nullptr);
        place.setAction(&action);
    }
    QVERIFY(!place.action());
}

void ActionsTest::noSequenceIsTakenTwice()
{
    const Actions actions;
    QSet<QKeySequence> taken;
    for (const Action *action : actions.all()) {
        QVERIFY(!action->name().isEmpty());
        for (const QVariant &sequence : action->sequences()) {
            const QKeySequence keys(sequence.toString());
            QVERIFY2(!keys.isEmpty() && !taken.contains(keys), qPrintable(sequence.toString()));
            taken.insert(keys);
        }
    }
    QVERIFY(taken.contains(QKeySequence(u"Ctrl+N"_s)));
}

QTEST_GUILESS_MAIN(ActionsTest)
#include "test_actions.moc"
