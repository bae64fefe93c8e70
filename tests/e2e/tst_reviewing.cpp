#include "reviewer.h"
#include "stage.h"

#include <QTest>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

const QString file = u"moth"_s;
const QString fileRow = u"Moth Carnival Box lid"_s;
const QString pageName = u"Pellow Cartons file · p1"_s;
const QString findingId = u"moth-0-1"_s;
const QString findingTitle = u"“PIECES” reads “PEICES”"_s;
const QString noteId = u"n-11"_s;
const QString noteText = u"Ask for a warmer black on the lid."_s;
const QString pinnedText = u"Lift this a little."_s;
const QString button = u"push button"_s;

/// A page's place is told in whole pixels, its size cut off: so far into it that is too small to matter.
bool isWithinHalfAPixel(const Note &note, QPointF way, QSize page)
{
    return std::abs(*note.x * page.width() - way.x()) <= 0.5 && std::abs(*note.y * page.height() - way.y()) <= 0.5;
}

} // namespace

/// How people review a page with Vexal: the real client and board, a real mouse and keyboard.
class ReviewingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_stage = std::make_unique<Stage>(); }
    void init();
    void cleanup();
    void cleanupTestCase() { m_stage.reset(); }

    void aFindingIsJudgedByMouse();
    void aFindingIsJudgedByKeyboard();
    void aJudgementIsUndone();
    void aJudgementThatIsRefusedComesBack();
    void aNoteIsPinnedWhereThePersonClicks();
    void aNoteIsPinnedAtTheSamePlaceOfAZoomedPage();
    void aNoteIsEdited();
    void escapeLeavesANoteAsItWas();
    void aNoteIsResolvedAndReopened();
    void aNoteIsDeletedOnceThatIsConfirmed();

private:
    Reviewer person() const { return {m_stage->desk(), *m_vexal}; }
    std::optional<Accessible> card() const { return m_vexal->find(u"list item"_s, findingTitle); }
    std::optional<Accessible> noteRow() const { return m_vexal->find(u"list item"_s, noteText); }
    std::optional<Accessible> page() const { return m_vexal->find(u"graphic"_s, pageName); }
    bool clickInMenuOfNote(const QString &item) const;

    FileDetail onBoard() const { return m_stage->visitor().file(file); }
    std::optional<Finding> findingOnBoard() const;
    std::optional<Note> noteOnBoard(const std::function<bool(const Note &)> &fits) const;
    std::optional<Note> noteOnBoard() const;
    QString judgement() const { return findingOnBoard() ? findingOnBoard()->state : QString(); }
    bool isJudged(const QString &button) const;
    bool isEditing() const { return m_vexal->shows(u"text"_s, u"Edit the note"_s); }
    std::optional<Note> pinned() const;
    void pinAt(QPoint place);

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<VexalProcess> m_vexal;
};

void ReviewingTest::init()
{
    m_stage->begin();
    m_vexal = m_stage->startSignedIn();
    const auto row = m_vexal->find(u"list item"_s, fileRow);
    QVERIFY(row && row->press());
    WAIT_FOR(page() && card() && noteRow());
}

void ReviewingTest::cleanup()
{
    m_vexal.reset();
    m_stage->end();
}

std::optional<Finding> ReviewingTest::findingOnBoard() const
{
    for (const Finding &finding : onBoard().findings) {
        if (finding.id == findingId)
            return finding;
    }
    return std::nullopt;
}

std::optional<Note> ReviewingTest::noteOnBoard(const std::function<bool(const Note &)> &fits) const
{
    for (const Note &note : onBoard().comments) {
        if (fits(note))
            return note;
    }
    return std::nullopt;
}

std::optional<Note> ReviewingTest::noteOnBoard() const
{
    return noteOnBoard([](const Note &note) { return note.id == noteId; });
}

std::optional<Note> ReviewingTest::pinned() const
{
    return noteOnBoard([](const Note &note) { return note.text == pinnedText; });
}

bool ReviewingTest::clickInMenuOfNote(const QString &item) const
{
    const auto menu = [this] { return noteRow() ? noteRow()->find(button, u"Edit or delete"_s) : std::nullopt; };
    return person().clickOn(menu) && person().clickOn(u"menu item"_s, item);
}

bool ReviewingTest::isJudged(const QString &button) const
{
    const auto shown = card() ? card()->find(::button, button) : std::nullopt;
    return shown && shown->isChecked();
}

void ReviewingTest::aFindingIsJudgedByMouse()
{
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Real issue"_s); }));
    WAIT_FOR(isJudged(u"Real issue"_s));
    WAIT_FOR(judgement() == "issue"_L1);
    QCOMPARE(findingOnBoard()->state_by, mira);
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Fine"_s); }));
    WAIT_FOR(isJudged(u"Fine"_s) && !isJudged(u"Real issue"_s));
    WAIT_FOR(judgement() == "fine"_L1);
    // What is on is taken back by the same button.
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Fine"_s); }));
    WAIT_FOR(judgement() == "open"_L1);
}

void ReviewingTest::aFindingIsJudgedByKeyboard()
{
    QVERIFY(person().tabTo(button, u"Real issue"_s));
    QVERIFY(card()->find(button, u"Real issue"_s)->isFocused());
    person().press({u"space"_s});
    WAIT_FOR(judgement() == "issue"_L1);
    WAIT_FOR(isJudged(u"Real issue"_s));
    person().press({u"Tab"_s, u"Return"_s});
    WAIT_FOR(judgement() == "fine"_L1);
    WAIT_FOR(isJudged(u"Fine"_s) && !isJudged(u"Real issue"_s));
}

void ReviewingTest::aJudgementIsUndone()
{
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Real issue"_s); }));
    WAIT_FOR(judgement() == "issue"_L1);
    QVERIFY(person().clickOnButton(u"Undo"_s));
    WAIT_FOR(judgement() == "open"_L1);
    WAIT_FOR(!isJudged(u"Real issue"_s));
}

void ReviewingTest::aJudgementThatIsRefusedComesBack()
{
    m_stage->board().kill();
    const QString sentence = u"Can't reach the Vexal server right now. Trying again…"_s;
    WAIT_FOR(m_vexal->says(sentence));
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Real issue"_s); }));
    // Over the banner, a toast that says it of this very change.
    WAIT_FOR(m_vexal->names(u"notification"_s).contains(sentence));
    m_stage->startBoard();
    WAIT_FOR(!isJudged(u"Real issue"_s));
    QCOMPARE(judgement(), u"open"_s);
    QVERIFY(person().clickOn([&] { return card()->find(button, u"Real issue"_s); }));
    WAIT_FOR(judgement() == "issue"_L1);
}

/// Clicks there with a note to pin, writes it and hands it in.
void ReviewingTest::pinAt(QPoint place)
{
    person().press({u"ctrl+n"_s});
    WAIT_FOR(m_vexal->shows(button, u"Click the page"_s));
    person().click(place);
    WAIT_FOR(m_vexal->shows(u"label"_s, u"Note pinned on page 1"_s));
    person().write(pinnedText);
    person().press({u"ctrl+Return"_s});
    WAIT_FOR(pinned());
}

void ReviewingTest::aNoteIsPinnedWhereThePersonClicks()
{
    const QRect shown = page()->place();
    const QPoint way(shown.width() / 4, shown.height() / 3);
    pinAt(shown.topLeft() + way);
    QVERIFY(pinned());
    QCOMPARE(pinned()->page, 0);
    QVERIFY2(isWithinHalfAPixel(*pinned(), way, shown.size()),
             qPrintable(u"%1, %2"_s.arg(*pinned()->x).arg(*pinned()->y)));
}

void ReviewingTest::aNoteIsPinnedAtTheSamePlaceOfAZoomedPage()
{
    const QSize fitted = page()->place().size();
    const auto mark = [this] { return m_vexal->find(button, findingTitle); };
    QVERIFY(mark());
    person().pointAt(mark()->place().center());
    person().turnWheel(9, u"ctrl"_s);
    WAIT_FOR(m_vexal->shows(button, u"Fit"_s));
    // Its card brings the mark to where it can be seen.
    QVERIFY(person().clickOn([this] { return card(); }));
    WAIT_FOR(mark() && mark()->place().width() > fitted.width() / 5);
    pinAt(Reviewer::restingPlace(mark).center());
    QVERIFY(pinned());
    const Box box = *findingOnBoard()->box;
    const QPointF way((box[0] + box[2] / 2) * fitted.width(), (box[1] + box[3] / 2) * fitted.height());
    QVERIFY2(isWithinHalfAPixel(*pinned(), way, fitted), qPrintable(u"%1, %2"_s.arg(*pinned()->x).arg(*pinned()->y)));
}

void ReviewingTest::aNoteIsEdited()
{
    QVERIFY(clickInMenuOfNote(u"Edit"_s));
    WAIT_FOR(isEditing());
    person().press({u"ctrl+a"_s});
    person().write(u"Ask for a colder black."_s);
    person().press({u"ctrl+Return"_s});
    WAIT_FOR(m_vexal->says(u"Saved."_s));
    QCOMPARE(noteOnBoard()->text, u"Ask for a colder black."_s);
    QVERIFY(noteOnBoard()->edited);
    WAIT_FOR(!isEditing());
}

void ReviewingTest::escapeLeavesANoteAsItWas()
{
    const auto closeUp = [this] { return m_vexal->shows(u"panel"_s, findingTitle); };
    QVERIFY(person().clickOn([this] { return card(); }));
    WAIT_FOR(closeUp());
    QVERIFY(clickInMenuOfNote(u"Edit"_s));
    WAIT_FOR(isEditing());
    person().write(u"Never mind. "_s);
    person().press({u"Escape"_s});
    WAIT_FOR(!isEditing());
    // It was the note's, and the close-up is closed by the next one.
    QVERIFY(closeUp());
    person().press({u"Escape"_s});
    WAIT_FOR(!closeUp());
    QCOMPARE(noteOnBoard()->text, noteText);
    QVERIFY(noteRow());
}

void ReviewingTest::aNoteIsResolvedAndReopened()
{
    QVERIFY(person().clickOn([&] { return noteRow()->find(button, u"Resolve"_s); }));
    WAIT_FOR(noteOnBoard()->resolved.value_or(0) != 0);
    WAIT_FOR(noteRow()->find(button, u"Resolved"_s));
    QVERIFY(person().clickOn([&] { return noteRow()->find(button, u"Resolved"_s); }));
    WAIT_FOR(noteOnBoard()->resolved.value_or(0) == 0);
}

void ReviewingTest::aNoteIsDeletedOnceThatIsConfirmed()
{
    QVERIFY(clickInMenuOfNote(u"Delete"_s));
    WAIT_FOR(m_vexal->shows(u"dialog"_s, u"Delete this note?"_s));
    QVERIFY(person().clickOnButton(u"Cancel"_s));
    WAIT_FOR(!m_vexal->shows(u"dialog"_s, u"Delete this note?"_s));
    QVERIFY(noteOnBoard());

    QVERIFY(clickInMenuOfNote(u"Delete"_s));
    QVERIFY(person().clickOnButton(u"Delete"_s));
    WAIT_FOR(m_vexal->says(u"Note deleted."_s));
    QVERIFY(!noteOnBoard());
    WAIT_FOR(!noteRow());
}

QTEST_GUILESS_MAIN(ReviewingTest)
#include "tst_reviewing.moc"
