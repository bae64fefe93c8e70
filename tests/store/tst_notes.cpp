#include "livestore.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace vexal;

/// Notes, and the draft that becomes one.
class TestNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_live = std::make_unique<LiveStore>(aBoard({aFile(u"f"_s), aFile(u"g"_s)}));
        m_live->details.insert(u"f"_s, aDetail(u"f"_s, 3, {aFinding(u"x"_s, 0, u"low"_s)}));
        m_live->begin();
        m_live->client.server.on("POST", "/api/comments").answer(200);
    }
    void cleanup() { m_live.reset(); }

    void blanksAreNoNote()
    {
        m_live->store.placePin({0.5, 0.5});
        m_live->store.answerFinding(u"x"_s);
        m_live->store.addNote(u" \n\t"_s);
        QVERIFY(m_live->store.busy().isEmpty());
        QCOMPARE(m_live->store.draftPin(), QPointF(0.5, 0.5));
        QCOMPARE(m_live->store.draftFinding(), u"x"_s);
    }

    void theDraftIsUsedUpAtThePress()
    {
        m_live->store.answerFinding(u"x"_s);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.setPinning(true);
        m_live->store.addNote(u"Here"_s);
        QVERIFY(!m_live->store.draftPin());
        QVERIFY(!m_live->store.draftFinding());
        QVERIFY(!m_live->store.pinning());
        waitForEnd();
        QVERIFY(!m_live->store.draftPin());
        QCOMPARE(m_live->client.server.requests("POST", "/api/comments").first().body,
                 R"({"file_id":"f","finding_id":"x","page":0,"text":"Here","x":0.5,"y":0.25})");
    }

    void theNoteIsThereWhenTheKeyIsFree()
    {
        m_live->client.server.on("POST", "/api/comments").react([this](const Received &request) {
            Note note;
            note.id = u"n"_s;
            note.file_id = u"f"_s;
            note.text = request.json()[u"text"_s].toString();
            m_live->details[u"f"_s].comments.append(note);
            return Answer(200);
        });
        m_live->store.addNote(u"Here"_s);
        waitForEnd();
        QCOMPARE(m_live->store.detail(u"f"_s)->comments, m_live->details[u"f"_s].comments);
        QCOMPARE(m_live->client.server.requests("GET", "/api/files/f").last().header("If-None-Match"), std::nullopt);
    }

    void aDraftComesBackWhenItsNoteIsNotTaken()
    {
        m_live->client.server.on("POST", "/api/comments").answer(500);
        m_live->store.answerFinding(u"x"_s);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.addNote(u"Here"_s);
        waitForEnd();
        QCOMPARE(m_live->store.draftPin(), QPointF(0.5, 0.25));
        QCOMPARE(m_live->store.draftFinding(), u"x"_s);
        QVERIFY(!m_live->store.pinning());
    }

    void aNewerDraftStands_data()
    {
        QTest::addColumn<int>("what");
        QTest::newRow("another pin") << 0;
        QTest::newRow("another finding") << 1;
        QTest::newRow("a pin about to be placed") << 2;
    }

    void aNewerDraftStands()
    {
        QFETCH(int, what);
        m_live->client.server.on("POST", "/api/comments").answer(500);
        m_live->store.answerFinding(u"x"_s);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.addNote(u"Here"_s);
        if (what == 0)
            m_live->store.placePin({0.1, 0.1});
        else if (what == 1)
            m_live->store.answerFinding(u"y"_s);
        else
            m_live->store.setPinning(true);
        waitForEnd();
        QCOMPARE(m_live->store.draftPin(), what == 0 ? std::optional(QPointF(0.1, 0.1)) : std::nullopt);
        QCOMPARE(m_live->store.draftFinding(), what == 1 ? std::optional(u"y"_s) : std::nullopt);
        QCOMPARE(m_live->store.pinning(), what == 2);
    }

    void aDraftDoesNotComeBackElsewhere_data()
    {
        QTest::addColumn<bool>("otherFile");
        QTest::newRow("another page") << false;
        QTest::newRow("another file") << true;
    }

    void aDraftDoesNotComeBackElsewhere()
    {
        QFETCH(bool, otherFile);
        m_live->client.server.on("POST", "/api/comments").answer(500);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.addNote(u"Here"_s);
        if (otherFile)
            m_live->store.selectFile(u"g"_s);
        else
            m_live->store.turnPage(u"f"_s, 1);
        waitForEnd();
        QVERIFY(!m_live->store.draftPin());
        // It waits where it was.
        m_live->store.selectFile(u"f"_s);
        m_live->store.turnPage(u"f"_s, 0);
        QCOMPARE(m_live->store.draftPin(), QPointF(0.5, 0.25));
        m_live->store.turnPage(u"f"_s, 1);
        m_live->store.turnPage(u"f"_s, 0);
        QVERIFY(!m_live->store.draftPin());
    }

    void aDraftOfANoteThatWasTakenStaysAway()
    {
        m_live->client.server.on("POST", "/api/comments").answer(200);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.addNote(u"Here"_s);
        m_live->store.turnPage(u"f"_s, 1);
        waitForEnd();
        m_live->store.turnPage(u"f"_s, 0);
        QVERIFY(!m_live->store.draftPin());
    }

    void whoHasToSignInAgainFindsTheDraft_data()
    {
        QTest::addColumn<bool>("posting");
        QTest::newRow("as the note is refused") << true;
        QTest::newRow("while it is written") << false;
    }

    void whoHasToSignInAgainFindsTheDraft()
    {
        QFETCH(bool, posting);
        m_live->client.server.on("POST", "/api/comments").answer(401);
        m_live->store.answerFinding(u"x"_s);
        m_live->store.placePin({0.5, 0.25});
        if (posting)
            m_live->store.addNote(u"Here"_s);
        else
            m_live->store.signOut(true);
        QTRY_VERIFY(!m_live->store.signedIn());
        QVERIFY(!m_live->store.draftPin());
        QVERIFY(!m_live->store.draftFinding());
        signInAgain();
        QCOMPARE(m_live->store.draftPin(), QPointF(0.5, 0.25));
        QCOMPARE(m_live->store.draftFinding(), u"x"_s);
    }

    void aDraftDoesNotComeBackToSomebodyElse()
    {
        m_live->store.placePin({0.5, 0.25});
        m_live->store.signOut(true);
        m_live->board.me.email = u"another@lanternhouse.example"_s;
        signInAgain();
        QVERIFY(!m_live->store.draftPin());
    }

    void whoSignsOutLeavesNoDraft()
    {
        m_live->client.server.on("POST", "/api/logout").answer(200);
        m_live->store.placePin({0.5, 0.25});
        m_live->store.signOut(false);
        signInAgain();
        QVERIFY(!m_live->store.draftPin());
    }

    void aNoteThatCannotBeWrittenIsNotSent()
    {
        m_live->store.placePin({std::numeric_limits<double>::quiet_NaN(), 0});
        m_live->store.addNote(u"Nowhere"_s);
        QVERIFY(m_live->store.isBusy(u"note"_s));
        waitForEnd();
        QCOMPARE(m_live->toast(), u"That didn't go through. Try again."_s);
        QVERIFY(m_live->client.server.requests("POST", "/api/comments").isEmpty());
    }

    void aNoteGoesToThePageThatShows()
    {
        m_live->store.turnPage(u"f"_s, 99);
        m_live->store.addNote(u"Here"_s);
        waitForEnd();
        QCOMPARE(m_live->client.server.requests("POST", "/api/comments").first().body,
                 R"({"file_id":"f","page":2,"text":"Here"})");
    }

    void withoutAFileThereIsNothingToWriteOn()
    {
        m_live->store.selectFile(u"g"_s, true);
        m_live->store.addNote(u"Here"_s);
        QVERIFY(m_live->store.busy().isEmpty());
    }

    void severalChangesOfANoteAreOneRequest()
    {
        m_live->client.server.on("POST", "/api/comments/n").answer(200);
        m_live->store.editNote(u"n"_s, u"Better"_s, true);
        waitForEnd();
        QCOMPARE(m_live->toast(), u"Resolved."_s);
        QCOMPARE(m_live->client.server.requests("POST", "/api/comments/n").first().body,
                 R"({"resolved":true,"text":"Better"})");
    }

    void aDeletedNoteIsNotOfferedBack()
    {
        m_live->client.server.on("POST", "/api/comments/n").answer(200);
        m_live->store.deleteNote(u"n"_s);
        waitForEnd();
        QCOMPARE(m_live->toast(), u"Note deleted."_s);
        QVERIFY(!m_live->store.toast()->undoLabel);
    }

private:
    void signInAgain()
    {
        m_live->client.credentials.store(u"another"_s, &m_live->store, [] {});
        QTRY_VERIFY(m_live->store.board());
    }
    void waitForEnd() { QTRY_VERIFY(m_live->store.busy().isEmpty()); }

    std::unique_ptr<LiveStore> m_live;
};

QTEST_GUILESS_MAIN(TestNotes)
#include "tst_notes.moc"
