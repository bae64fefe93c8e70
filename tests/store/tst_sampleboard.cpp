#include "livestore.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

/// The sample board: it looks like any other, and nothing leaves the computer.
class TestSampleBoard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsAskedOf()
    {
        LiveStore live;
        live.store.takeSample(sample());
        live.store.resume();
        live.store.start();
        live.store.refresh();
        live.store.loadDetail(u"f"_s);
        live.store.checkVersion();
        live.store.openUrl(QUrl(u"vexal://signed-in"_s));
        QTest::qWait(0);
        QVERIFY(!live.sleep.asleep());
        QCOMPARE(live.toast(), u""_s);
        QVERIFY(live.client.server.requests().isEmpty());
    }

    void whatCannotBeDoneIsSaidSo_data()
    {
        QTest::addColumn<int>("action");
        for (int i = 0; i < actions().size(); ++i)
            QTest::addRow("%d", i) << i;
    }

    void whatCannotBeDoneIsSaidSo()
    {
        QFETCH(int, action);
        LiveStore live;
        live.store.takeSample(sample());
        const auto details = live.store.details();
        const auto board = live.store.board();
        actions()[action](live.store);
        QCOMPARE(live.toast(), u"This is the sample board."_s);
        QVERIFY(live.store.signedIn());
        QVERIFY(live.store.busy().isEmpty());
        QVERIFY(!live.store.refreshing());
        QCOMPARE(live.store.board(), board);
        QCOMPARE(live.store.details(), details);
        QTest::qWait(0);
        QVERIFY(live.client.server.requests().isEmpty());
        QVERIFY(live.picker.messages.isEmpty());
    }

    void aStoreOfItsOwnNeedsNoServer_data() { whatCannotBeDoneIsSaidSo_data(); }
    void aStoreOfItsOwnNeedsNoServer()
    {
        QFETCH(int, action);
        Store store(TestClock().clock());
        actions()[action](store);
        store.resume();
        store.start();
        store.refresh();
        store.checkVersion();
        store.cancelSignIn();
        store.openUrl(QUrl(u"vexal://signed-in"_s));
        QVERIFY(!store.toast());
        QVERIFY(!store.signingIn());
        store.takeSample(sample());
        actions()[action](store);
        QCOMPARE(store.toast()->text, u"This is the sample board."_s);
    }

private:
    static Sample sample()
    {
        return {aBoard({aFile(u"f"_s)}), {{u"f"_s, aDetail(u"f"_s, 3, {aFinding(u"x"_s, 0, u"low"_s)})}}};
    }

    static const QList<std::function<void(Store &)>> &actions()
    {
        static const QList<std::function<void(Store &)>> all{
            [](Store &store) { store.refreshNow(); },
            [](Store &store) { store.startSync(); },
            [](Store &store) { store.makeReport(); },
            [](Store &store) { store.stopJob(u"j"_s); },
            [](Store &store) { store.setStatus(u"f"_s, u"reviewed"_s); },
            [](Store &store) { store.setFindingState(u"x"_s, u"fine"_s); },
            [](Store &store) { store.addNote(u"Hello"_s); },
            [](Store &store) { store.deleteNote(u"n"_s); },
            [](Store &store) { store.openReport(u"r"_s); },
            [](Store &store) { store.changePhoto(); },
            [](Store &store) { store.signIn(); },
            [](Store &store) { store.signOut(); },
        };
        return all;
    }
};

QTEST_GUILESS_MAIN(TestSampleBoard)
#include "tst_sampleboard.moc"
