#include "inspectorscreen.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;
using test::InspectorScreen;

namespace {

Note aNote(const QString &id, const QString &text, std::optional<qint64> page = 0)
{
    Note note;
    note.id = id;
    note.file_id = u"f"_s;
    note.page = page;
    note.text = text;
    note.by = u"teo@lanternhouse.example"_s;
    return note;
}

FileDetail detailOf(const QList<Note> &notes = {})
{
    Finding finding = aFinding(u"a"_s, 0, u"high"_s);
    finding.against = u"submitted"_s;
    finding.kind = u"words"_s;
    finding.title = u"Title of a"_s;
    FileDetail detail = aDetail(u"f"_s, 3, {finding});
    for (Page &page : *detail.file.pages)
        page.refs = QMap<QString, RefPage>{{u"submitted"_s, {}}};
    detail.comments = notes;
    return detail;
}

} // namespace

/// Notes: new ones, and what becomes of those that are there.
class WritingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_on.reset(); }

    void aNoteIsPostedAndItsTextGoes();
    void aNoteOnItsWayIsNotPostedAgain();
    void aRefusedNoteKeepsItsTextAndItsPlace();
    void aDraftThatComesBackTakesNoFocus();
    void blanksAreNotPosted();
    void controlReturnPosts();
    void returnAloneIsALine();
    void whatIsTypedSurvivesANewBoard();
    void everyPageHasItsOwnText();
    void whatIsTypedIsThereWhenTheFileIsShownAgain();
    void aPinTakesTheKeyboardToTheField();
    void aNoteOnAFindingBeginsAtItsCard();
    void clearDropsThePlaceAndKeepsTheText();
    void thePlaceholderAsksForTheClick();
    void theFieldGrowsToEightLinesAndScrolls();
    void tabLeavesTheField();
    void theTextOfANoteIsSelectedByTheMouse();
    void aNoteIsResolvedAndReopened();
    void aNoteIsEdited();
    void aRefusedEditStaysOpenWithWhatWasTyped();
    void cancelLeavesTheNote();
    void escapeEndsAnEditAndNothingElse();
    void escapeInTheFieldDropsThePlaceFirst();
    void anEditSurvivesANewBoardWithItsCaret();
    void anEditOutlivesItsRow();
    void anEditThatIsBuiltAnewLeavesTheKeyboardWhereItIs();
    void aTextIsGoneOnWithAtItsEnd();
    void asSoonAsSomethingIsWrittenItIsInSight();
    void anEditGoesWithItsNote();
    void aResolvedNoteStaysInEdit();
    void whatWasWrittenGoesWithWhoSignsOut();
    void whatWasWrittenOutlivesASessionThatEnded();
    void nobodyReadsWhatAnotherHasBegun();
    void deletionAsksFirst();
    void theMenuIsUsedByKeyboard();
    void notesOnAFindingStandInItsCard();
    void pinnedNotesCarryTheirNumber();
    void notesOnTheWholeFileSaySo();

private:
    void show(const QList<Note> &notes = {}) { m_on = std::make_unique<InspectorScreen>(detailOf(notes)); }
    /// The server takes new notes from now on.
    void takeNotes()
    {
        m_on->live.client.server.on("POST", "/api/comments").react([this](const Received &request) {
            auto &notes = m_on->live.details[u"f"_s].comments;
            notes.append(aNote(u"posted"_s, request.json()[u"text"_s].toString()));
            return Answer(200);
        });
    }
    /// It takes changes of the note.
    void takeChanges(const QString &id)
    {
        m_on->live.client.server.on("POST", "/api/comments/" + id.toUtf8()).react([this, id](const Received &request) {
            auto &notes = m_on->live.details[u"f"_s].comments;
            for (Note &note : notes) {
                if (note.id == id && request.json().contains(u"text"_s))
                    note.text = request.json()[u"text"_s].toString();
                if (note.id == id && request.json().contains(u"resolved"_s))
                    note.resolved = request.json()[u"resolved"_s].toBool() ? 1 : 0;
            }
            notes.removeIf([&](const Note &note) { return note.id == id && request.json().contains(u"deleted"_s); });
            return Answer(200);
        });
    }
    QList<Received> posted() const { return m_on->live.client.server.requests("POST", "/api/comments"); }
    QList<Received> changes() const { return m_on->live.client.server.requests("POST", "/api/comments/n"); }
    QString written() const { return m_on->field()->property("text").toString(); }
    void write(const QString &text) const
    {
        m_on->field()->forceActiveFocus();
        m_on->type(text);
    }
    QQuickItem *row(int at = 0) const { return m_on->screen->all("NoteRow").value(at); }
    QQuickItem *ofRow(const QString &name) const { return InspectorScreen::named(row(), name); }
    QQuickItem *editor() const { return ofRow(u"edit"_s); }
    void choose(int what) const
    {
        m_on->screen->click(ofRow(u"more"_s));
        QTRY_VERIFY(m_on->named(u"choice%1"_s.arg(what)));
        QQuickItem *choice = m_on->named(u"choice%1"_s.arg(what));
        QTRY_VERIFY(choice && choice->isVisible());
        m_on->screen->click(choice);
    }
    void beginEdit() const
    {
        choose(0);
        QTRY_VERIFY(editor());
        QTRY_COMPARE(m_on->focus(), editor());
    }

    /// Begins a new note and the edit of one.
    void writeAndEdit() const
    {
        write(u"Here"_s);
        beginEdit();
        m_on->screen->press(Qt::Key_End);
        m_on->type(u" more"_s);
    }
    void signInAgain(const QString &email) const
    {
        QVERIFY(!m_on->live.store.signedIn());
        m_on->live.board.me.email = email;
        m_on->live.client.credentials.store(u"another"_s, &m_on->live.store, [] {});
        QTRY_VERIFY(row());
    }

    std::unique_ptr<InspectorScreen> m_on;
};

void WritingTest::aNoteIsPostedAndItsTextGoes()
{
    show();
    takeNotes();
    m_on->live.store.turnPage(u"f"_s, 1);
    write(u" Here "_s);
    m_on->screen->click(m_on->named(u"post"_s));
    m_on->waitForEnd();
    QCOMPARE(posted().size(), 1);
    QCOMPARE(posted().first().body, R"({"file_id":"f","page":1,"text":"Here"})");
    QCOMPARE(written(), QString());
    QCOMPARE(m_on->live.toast(), u"Note added."_s);
    QCOMPARE(m_on->focus(), m_on->field());
}

void WritingTest::aNoteOnItsWayIsNotPostedAgain()
{
    show();
    Gate gate;
    m_on->live.client.server.on("POST", "/api/comments").answer(Answer(200).heldBy(gate));
    write(u"Here"_s);
    QQuickItem *post = m_on->named(u"post"_s);
    m_on->screen->click(post);
    QCOMPARE(post->property("title"), u"Posting…"_s);
    QVERIFY(post->property("busy").toBool());
    m_on->screen->click(post);
    m_on->screen->press(Qt::Key_Return, Qt::ControlModifier);
    m_on->type(u"more"_s);
    QCOMPARE(written(), u"Here"_s);
    QTRY_COMPARE(m_on->screen->only("Composer")->opacity(), 0.7);
    gate.open();
    m_on->waitForEnd();
    QCOMPARE(posted().size(), 1);
    QCOMPARE(post->property("title"), u"Post"_s);
    QCOMPARE(written(), QString());
}

void WritingTest::aRefusedNoteKeepsItsTextAndItsPlace()
{
    show();
    m_on->live.client.server.on("POST", "/api/comments").answer(500);
    m_on->live.store.placePin({0.5, 0.25});
    write(u"Here"_s);
    m_on->screen->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_on->context(), u"Note on page 1"_s);
    m_on->waitForEnd();
    QCOMPARE(written(), u"Here"_s);
    QCOMPARE(m_on->context(), u"Note pinned on page 1"_s);
    QVERIFY(m_on->named(u"post"_s)->isEnabled());
}

void WritingTest::aDraftThatComesBackTakesNoFocus()
{
    show();
    m_on->live.client.server.on("POST", "/api/comments").answer(500);
    m_on->live.store.answerFinding(u"a"_s);
    write(u"Here"_s);
    QQuickItem *card = m_on->card(u"Title of a"_s);
    card->forceActiveFocus();
    m_on->screen->click(m_on->named(u"post"_s));
    m_on->waitForEnd();
    QCOMPARE(m_on->context(), u"Note on: Title of a"_s);
    QCOMPARE(m_on->focus(), card);
}

void WritingTest::blanksAreNotPosted()
{
    show();
    QVERIFY(!m_on->named(u"post"_s)->isEnabled());
    write(u"  "_s);
    m_on->screen->press(Qt::Key_Return);
    QVERIFY(!m_on->named(u"post"_s)->isEnabled());
    m_on->screen->press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(m_on->live.store.busy().isEmpty());
    QCOMPARE(written(), u"  \n"_s);
    m_on->type(u"x"_s);
    QVERIFY(m_on->named(u"post"_s)->isEnabled());
}

void WritingTest::controlReturnPosts()
{
    show();
    takeNotes();
    write(u"Here"_s);
    m_on->screen->press(Qt::Key_Return, Qt::ControlModifier);
    m_on->waitForEnd();
    QCOMPARE(posted().size(), 1);
    QCOMPARE(written(), QString());
}

void WritingTest::returnAloneIsALine()
{
    show();
    write(u"a"_s);
    m_on->screen->press(Qt::Key_Return);
    m_on->type(u"b"_s);
    QCOMPARE(written(), u"a\nb"_s);
}

void WritingTest::whatIsTypedSurvivesANewBoard()
{
    show({aNote(u"n"_s, u"A note"_s)});
    write(u"The fifth lantern is missing"_s);
    QQuickItem *field = m_on->field();
    field->setProperty("cursorPosition", 9);
    m_on->live.board.rev += 1;
    m_on->live.board.files[0].title = u"Another title"_s;
    auto &detail = m_on->live.details[u"f"_s];
    detail.comments.prepend(aNote(u"new"_s, u"By somebody else"_s));
    detail.findings[0].title = u"Told otherwise"_s;
    m_on->live.round();
    QTRY_VERIFY(m_on->card(u"Told otherwise"_s));
    QCOMPARE(m_on->field(), field);
    QCOMPARE(written(), u"The fifth lantern is missing"_s);
    QCOMPARE(field->property("cursorPosition").toInt(), 9);
    QCOMPARE(m_on->focus(), field);
    m_on->type(u"!"_s);
    QCOMPARE(written(), u"The fifth! lantern is missing"_s);
}

void WritingTest::everyPageHasItsOwnText()
{
    show();
    write(u"On the first"_s);
    m_on->live.store.turnPage(u"f"_s, 1);
    QCOMPARE(written(), QString());
    QCOMPARE(m_on->context(), u"Note on page 2"_s);
    write(u"On the second"_s);
    m_on->live.store.turnPage(u"f"_s, 0);
    QCOMPARE(written(), u"On the first"_s);
    m_on->live.store.turnPage(u"f"_s, 1);
    QCOMPARE(written(), u"On the second"_s);
}

void WritingTest::whatIsTypedIsThereWhenTheFileIsShownAgain()
{
    show();
    write(u"Here"_s);
    m_on->live.store.selectFile(u"other"_s, true);
    m_on->live.store.selectFile(u"other"_s);
    m_on->live.store.selectFile(u"f"_s);
    QCOMPARE(written(), u"Here"_s);
}

void WritingTest::aPinTakesTheKeyboardToTheField()
{
    show();
    m_on->card(u"Title of a"_s)->forceActiveFocus();
    m_on->live.store.setPinning(true);
    QVERIFY(m_on->focus() != m_on->field());
    m_on->live.store.placePin({0.5, 0.5});
    QCOMPARE(m_on->focus(), m_on->field());
    QCOMPARE(m_on->context(), u"Note pinned on page 1"_s);
}

void WritingTest::aNoteOnAFindingBeginsAtItsCard()
{
    show();
    m_on->screen->click(InspectorScreen::named(m_on->card(u"Title of a"_s), u"note"_s));
    QCOMPARE(m_on->live.store.draftFinding(), u"a"_s);
    QCOMPARE(m_on->focus(), m_on->field());
    QCOMPARE(m_on->context(), u"Note on: Title of a"_s);
    m_on->live.store.placePin({0.5, 0.5});
    QCOMPARE(m_on->context(), u"Note pinned on page 1"_s);
    // Whoever asks again is led to the field again.
    m_on->card(u"Title of a"_s)->forceActiveFocus();
    m_on->screen->click(InspectorScreen::named(m_on->card(u"Title of a"_s), u"note"_s));
    QCOMPARE(m_on->focus(), m_on->field());
}

void WritingTest::clearDropsThePlaceAndKeepsTheText()
{
    show();
    QVERIFY(!m_on->named(u"clear"_s));
    write(u"Here"_s);
    m_on->live.store.placePin({0.5, 0.5});
    m_on->live.store.answerFinding(u"a"_s);
    m_on->screen->click(m_on->named(u"clear"_s));
    QVERIFY(!m_on->live.store.draftPin() && !m_on->live.store.draftFinding());
    QVERIFY(!m_on->named(u"clear"_s));
    QCOMPARE(written(), u"Here"_s);
}

void WritingTest::thePlaceholderAsksForTheClick()
{
    show();
    const auto placeholder = [this] { return m_on->named(u"placeholder"_s); };
    QCOMPARE(placeholder()->property("text"), u"Write a note for the report"_s);
    m_on->live.store.setPinning(true);
    QCOMPARE(placeholder()->property("text"), u"Click the page where it goes…"_s);
    write(u"x"_s);
    QVERIFY(!placeholder());
}

void WritingTest::theFieldGrowsToEightLinesAndScrolls()
{
    show();
    const QQuickItem *field = m_on->named(u"field"_s);
    QCOMPARE(field->height(), 54.0);
    QList<qreal> heights;
    m_on->field()->forceActiveFocus();
    for (int line = 2; line <= 12; ++line) {
        m_on->screen->press(Qt::Key_Return);
        heights.append(field->height());
    }
    QVERIFY(heights[4] > heights[2] && heights[6] > heights[4]);
    QCOMPARE(heights[10], heights[6]);
    // The caret is in sight, and the field on the column.
    const QRectF caret = m_on->field()->property("cursorRectangle").toRectF();
    const QQuickItem *view = m_on->named(u"view"_s);
    QVERIFY(view->property("contentY").toReal() > 0);
    QVERIFY(caret.bottom() <= view->property("contentY").toReal() + view->height() + 1);
}

void WritingTest::tabLeavesTheField()
{
    show();
    write(u"x"_s);
    m_on->screen->press(Qt::Key_Tab);
    QCOMPARE(m_on->focus(), m_on->named(u"post"_s));
    m_on->screen->press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(m_on->focus(), m_on->field());
    QCOMPARE(written(), u"x"_s);
}

void WritingTest::theTextOfANoteIsSelectedByTheMouse()
{
    show({aNote(u"n"_s, u"A line of a note\n"_s.repeated(60))});
    QQuickItem *text = ofRow(u"text"_s);
    QQuickWindow *window = &m_on->screen->window();
    const QPoint from = text->mapToScene({2, 4}).toPoint();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    for (int down = 1; down <= 60; ++down)
        QTest::mouseMove(window, from + QPoint(0, down));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, from + QPoint(0, 60));
    QVERIFY(text->property("selectedText").toString().size() > 30);
    QCOMPARE(m_on->named(u"column"_s)->property("contentY").toReal(), 0.0);
}

void WritingTest::aNoteIsResolvedAndReopened()
{
    show({aNote(u"n"_s, u"A note"_s)});
    takeChanges(u"n"_s);
    QCOMPARE(ofRow(u"resolve"_s)->property("help"), u"Resolve"_s);
    m_on->screen->click(ofRow(u"resolve"_s));
    QVERIFY(ofRow(u"resolve"_s)->property("busy").toBool());
    m_on->waitForEnd();
    QCOMPARE(changes().last().body, R"({"resolved":true})");
    QVERIFY(ofRow(u"text"_s)->property("font").value<QFont>().strikeOut());
    m_on->screen->click(ofRow(u"resolve"_s));
    m_on->waitForEnd();
    QCOMPARE(changes().last().body, R"({"resolved":false})");
    QVERIFY(!ofRow(u"text"_s)->property("font").value<QFont>().strikeOut());
}

void WritingTest::aNoteIsEdited()
{
    show({aNote(u"n"_s, u"A note"_s)});
    takeChanges(u"n"_s);
    beginEdit();
    QCOMPARE(editor()->property("text"), u"A note"_s);
    m_on->screen->press(Qt::Key_End);
    m_on->type(u" more"_s);
    m_on->screen->press(Qt::Key_Return, Qt::ControlModifier);
    m_on->waitForEnd();
    QCOMPARE(changes().size(), 1);
    QCOMPARE(changes().first().body, R"({"text":"A note more"})");
    QTRY_VERIFY(!editor());
    QVERIFY(row());
    QCOMPARE(ofRow(u"text"_s)->property("text"), u"A note more"_s);
    QCOMPARE(m_on->focus(), ofRow(u"more"_s));
    QVERIFY(posted().isEmpty());
}

void WritingTest::aRefusedEditStaysOpenWithWhatWasTyped()
{
    show({aNote(u"n"_s, u"A note"_s)});
    m_on->live.client.server.on("POST", "/api/comments/n").answer(500);
    beginEdit();
    m_on->screen->press(Qt::Key_End);
    m_on->type(u" more"_s);
    m_on->screen->click(ofRow(u"save"_s));
    m_on->waitForEnd();
    QVERIFY(editor());
    QCOMPARE(editor()->property("text"), u"A note more"_s);
    takeChanges(u"n"_s);
    m_on->screen->click(ofRow(u"save"_s));
    m_on->waitForEnd();
    QTRY_VERIFY(!editor());
}

void WritingTest::cancelLeavesTheNote()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    m_on->type(u"x"_s);
    m_on->screen->click(ofRow(u"cancel"_s));
    QTRY_VERIFY(!editor());
    QCOMPARE(m_on->focus(), ofRow(u"more"_s));
    QCOMPARE(ofRow(u"text"_s)->property("text"), u"A note"_s);
    beginEdit();
    QCOMPARE(editor()->property("text"), u"A note"_s);
}

void WritingTest::escapeEndsAnEditAndNothingElse()
{
    show({aNote(u"n"_s, u"A note"_s)});
    m_on->live.store.focusFinding(u"a"_s);
    beginEdit();
    m_on->type(u"x"_s);
    m_on->screen->press(Qt::Key_Escape);
    QTRY_VERIFY(!editor());
    QCOMPARE(ofRow(u"text"_s)->property("text"), u"A note"_s);
    QCOMPARE(m_on->focus(), ofRow(u"more"_s));
    QCOMPARE(m_on->live.store.focus(), u"a"_s);
    m_on->screen->press(Qt::Key_Escape);
    QVERIFY(!m_on->live.store.focus());
}

void WritingTest::escapeInTheFieldDropsThePlaceFirst()
{
    show();
    m_on->live.store.focusFinding(u"a"_s);
    m_on->live.store.placePin({0.5, 0.5});
    write(u"Here"_s);
    m_on->screen->press(Qt::Key_Escape);
    QVERIFY(!m_on->live.store.draftPin());
    QCOMPARE(written(), u"Here"_s);
    QCOMPARE(m_on->focus(), m_on->field());
    QCOMPARE(m_on->live.store.focus(), u"a"_s);
    m_on->screen->press(Qt::Key_Escape);
    QVERIFY(!m_on->live.store.focus());
}

void WritingTest::anEditSurvivesANewBoardWithItsCaret()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    QQuickItem *field = editor();
    m_on->type(u"xyz"_s);
    field->setProperty("cursorPosition", 2);
    auto &notes = m_on->live.details[u"f"_s].comments;
    notes[0].text = u"Changed by somebody else"_s;
    notes.prepend(aNote(u"new"_s, u"By somebody else"_s));
    m_on->live.board.rev += 1;
    m_on->live.round();
    QTRY_COMPARE(m_on->screen->all("NoteRow").size(), 2);
    QCOMPARE(m_on->focus(), field);
    QCOMPARE(field->property("text").toString().size(), 9);
    QCOMPARE(field->property("cursorPosition").toInt(), 2);
}

void WritingTest::anEditOutlivesItsRow()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    m_on->screen->press(Qt::Key_End);
    m_on->type(u" more"_s);
    m_on->live.store.turnPage(u"f"_s, 1);
    QTRY_VERIFY(!row());
    m_on->live.store.selectFile(u"other"_s);
    m_on->live.store.selectFile(u"f"_s);
    m_on->live.store.turnPage(u"f"_s, 0);
    QTRY_VERIFY(editor());
    QCOMPARE(editor()->property("text"), u"A note more"_s);
}

void WritingTest::anEditThatIsBuiltAnewLeavesTheKeyboardWhereItIs()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    write(u"Here"_s);
    m_on->live.store.turnPage(u"f"_s, 1);
    QTRY_VERIFY(!row());
    m_on->live.store.turnPage(u"f"_s, 0);
    QTRY_VERIFY(editor());
    QCOMPARE(m_on->focus(), m_on->field());
    QCOMPARE(written(), u"Here"_s);
}

void WritingTest::aTextIsGoneOnWithAtItsEnd()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    m_on->type(u"!"_s);
    QCOMPARE(editor()->property("text"), u"A note!"_s);

    const auto caret = [this] { return m_on->field()->property("cursorPosition").toInt(); };
    write(u"First"_s);
    m_on->live.store.turnPage(u"f"_s, 1);
    QTRY_COMPARE(caret(), 0);
    m_on->live.store.turnPage(u"f"_s, 0);
    QTRY_COMPARE(caret(), 5);
}

void WritingTest::asSoonAsSomethingIsWrittenItIsInSight()
{
    show({aNote(u"n"_s, u"A line of a note\n"_s.repeated(90))});
    QQuickItem *column = m_on->named(u"column"_s);
    const auto inSight = [&] {
        const qreal top = m_on->field()->mapToScene({}).y();
        return top > 0 && top < column->height();
    };
    write(u"Here"_s);
    QVERIFY(inSight());
    column->setProperty("contentY", 0);
    QVERIFY(!inSight());
    m_on->type(u"!"_s);
    QVERIFY(inSight());
}

void WritingTest::anEditGoesWithItsNote()
{
    show({aNote(u"n"_s, u"A note"_s)});
    beginEdit();
    m_on->live.store.takeDetail(u"f"_s, detailOf());
    QTRY_VERIFY(!row());
    m_on->live.store.takeDetail(u"f"_s, detailOf({aNote(u"n"_s, u"A note"_s)}));
    QTRY_VERIFY(row());
    QVERIFY(!editor());
}

void WritingTest::aResolvedNoteStaysInEdit()
{
    show({aNote(u"n"_s, u"A note"_s)});
    takeChanges(u"n"_s);
    beginEdit();
    m_on->type(u"x"_s);
    m_on->screen->click(ofRow(u"resolve"_s));
    m_on->waitForEnd();
    QVERIFY(editor());
    QVERIFY(editor()->property("text").toString().contains(u'x'));
}

void WritingTest::whatWasWrittenGoesWithWhoSignsOut()
{
    show({aNote(u"n"_s, u"A note"_s)});
    writeAndEdit();
    m_on->live.store.signOut();
    signInAgain(u"ada@lanternhouse.example"_s);
    QCOMPARE(written(), QString());
    QVERIFY(!editor());
}

void WritingTest::whatWasWrittenOutlivesASessionThatEnded()
{
    show({aNote(u"n"_s, u"A note"_s)});
    writeAndEdit();
    m_on->live.store.signOut(true);
    signInAgain(u"ada@lanternhouse.example"_s);
    QCOMPARE(written(), u"Here"_s);
    QCOMPARE(editor()->property("text"), u"A note more"_s);
}

void WritingTest::nobodyReadsWhatAnotherHasBegun()
{
    show({aNote(u"n"_s, u"A note"_s)});
    writeAndEdit();
    m_on->live.store.signOut(true);
    signInAgain(u"teo@lanternhouse.example"_s);
    QCOMPARE(written(), QString());
    QVERIFY(!editor());
}

void WritingTest::deletionAsksFirst()
{
    show({aNote(u"n"_s, u"A note"_s)});
    takeChanges(u"n"_s);
    choose(1);
    QTRY_VERIFY(m_on->named(u"act"_s));
    QCOMPARE(m_on->named(u"question"_s)->property("text"), u"Delete this note?"_s);
    QCOMPARE(m_on->focus(), m_on->named(u"cancel"_s));
    m_on->screen->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_on->named(u"act"_s));
    QVERIFY(changes().isEmpty());
    choose(1);
    QTRY_VERIFY(m_on->named(u"act"_s));
    m_on->screen->press(Qt::Key_Tab);
    QCOMPARE(m_on->focus(), m_on->named(u"act"_s));
    m_on->screen->press(Qt::Key_Tab);
    m_on->screen->press(Qt::Key_Tab);
    m_on->screen->press(Qt::Key_Space);
    m_on->waitForEnd();
    QCOMPARE(changes().first().body, R"({"deleted":true})");
    QCOMPARE(m_on->live.toast(), u"Note deleted."_s);
    QTRY_VERIFY(!row());
    QVERIFY(m_on->screen->texts().contains(u"No notes on this page yet."_s));
}

void WritingTest::theMenuIsUsedByKeyboard()
{
    show({aNote(u"n"_s, u"A note"_s)});
    ofRow(u"more"_s)->forceActiveFocus(Qt::TabFocusReason);
    m_on->screen->press(Qt::Key_Space);
    QTRY_VERIFY(m_on->named(u"choice0"_s));
    m_on->screen->press(Qt::Key_Escape);
    QTRY_VERIFY(!m_on->named(u"choice0"_s));
    QCOMPARE(m_on->focus(), ofRow(u"more"_s));
    m_on->screen->press(Qt::Key_Return);
    m_on->screen->press(Qt::Key_Down);
    m_on->screen->press(Qt::Key_Return);
    QTRY_VERIFY(m_on->named(u"act"_s));
    m_on->screen->press(Qt::Key_Return);
    QTRY_VERIFY(!m_on->named(u"act"_s));
    QCOMPARE(m_on->focus(), ofRow(u"more"_s));
    QVERIFY(changes().isEmpty());
}

void WritingTest::notesOnAFindingStandInItsCard()
{
    Note answer = aNote(u"n"_s, u"An answer"_s);
    answer.finding_id = u"a"_s;
    show({answer});
    QQuickItem *card = m_on->card(u"Title of a"_s);
    QCOMPARE(m_on->screen->all("NoteRow").size(), 1);
    QVERIFY(card->isAncestorOf(row()));
    QVERIFY(m_on->screen->texts().contains(u"No notes on this page yet."_s));
    beginEdit();
    m_on->type(u"x"_s);
    FileDetail detail = detailOf({answer});
    detail.findings[0].title = u"Told otherwise"_s;
    m_on->live.store.takeDetail(u"f"_s, detail);
    QVERIFY(editor());
    QCOMPARE(m_on->focus(), editor());
}

void WritingTest::pinnedNotesCarryTheirNumber()
{
    Note pinned = aNote(u"n"_s, u"Here"_s);
    pinned.x = 0.5;
    pinned.y = 0.5;
    show({pinned, aNote(u"m"_s, u"Anywhere"_s)});
    QVERIFY(InspectorScreen::named(row(0), u"badge"_s));
    QVERIFY(!InspectorScreen::named(row(1), u"badge"_s));
}

void WritingTest::notesOnTheWholeFileSaySo()
{
    show({aNote(u"n"_s, u"All of it"_s, {})});
    QVERIFY(row()->property("row").isValid());
    QVERIFY(m_on->screen->texts().filter(u"Whole file · "_s).size() == 1);
    m_on->live.store.turnPage(u"f"_s, 1);
    QTRY_VERIFY(!row());
}

QTEST_MAIN(WritingTest)
#include "tst_writing.moc"
