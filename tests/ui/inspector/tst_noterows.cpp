#include "boards.h"
#include "composer.h"
#include "derived.h"
#include "noterow.h"
#include "pinnumbers.h"
#include "testclock.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vexal;

namespace {

Note aNote(const QString &id, std::optional<qint64> page = 0)
{
    Note note;
    note.id = id;
    note.page = page;
    note.text = u"Text of "_s + id;
    note.by = u"teo@lanternhouse.example"_s;
    return note;
}

Note pinned(const QString &id, qint64 page = 0)
{
    Note note = aNote(id, page);
    note.x = 0.5;
    note.y = 0.25;
    return note;
}

QStringList ids(const QList<Note> &notes)
{
    QStringList ids;
    for (const Note &note : notes)
        ids.append(note.id);
    return ids;
}

} // namespace

class NoteRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageListsItsOwnNotes();
    void notesOnTheWholeFileStandUnderTheFirstPages();
    void aFindingHasItsNotes();
    void pinsAreNumberedByPage();
    void aNoteWithoutEndIsCutForTheScreen();
    void aResolvedNoteKeepsItsNumber();
    void halfAPlaceIsNoPin();
    void aRowSaysWhoAndWhen();
    void anEditedNoteSaysSo();
    void aNoteOnTheWholeFileSaysSoBeforeTheTime();
    void aResolvedNoteNamesWhoResolvedIt();
    void zeroIsNotResolved();
    void aRowIsBusyUnderItsOwnKey();
    void thePinGoesBeforeTheFinding();
    void thePlaceholderFollowsThePin();

private:
    NoteRow row(const Note &note) const { return noteRows({note}, {}, {}, telling()).constFirst(); }
    Telling telling() const { return {&m_board, m_clock.clock(), {}, {}}; }

    TestClock m_clock;
    BoardState m_board = aBoard();
};

void NoteRowsTest::aPageListsItsOwnNotes()
{
    Note onFinding = aNote(u"c"_s, 1);
    onFinding.finding_id = u"x"_s;
    const QList<Note> notes{aNote(u"a"_s, 1), aNote(u"b"_s, 0), onFinding, aNote(u"d"_s, 1), aNote(u"e"_s, {})};
    QCOMPARE(ids(notesOfPage(notes, 1)), QStringList({u"a"_s, u"d"_s}));
}

void NoteRowsTest::notesOnTheWholeFileStandUnderTheFirstPages()
{
    const QList<Note> notes{aNote(u"whole"_s, {}), aNote(u"a"_s, 0), aNote(u"b"_s, 1)};
    QCOMPARE(ids(notesOfPage(notes, 0)), QStringList({u"a"_s, u"whole"_s}));
    QCOMPARE(ids(notesOfPage(notes, 1)), QStringList{u"b"_s});
}

void NoteRowsTest::aFindingHasItsNotes()
{
    Note one = aNote(u"a"_s, 0);
    one.finding_id = u"x"_s;
    Note other = aNote(u"b"_s, 0);
    other.finding_id = u"y"_s;
    QCOMPARE(ids(notesOfFinding({one, other, aNote(u"c"_s, 0)}, u"x"_s)), QStringList{u"a"_s});
}

void NoteRowsTest::pinsAreNumberedByPage()
{
    const QList<Note> notes{pinned(u"a"_s), aNote(u"b"_s), pinned(u"other"_s, 1), pinned(u"c"_s), pinned(u"a"_s)};
    QCOMPARE(pinNumbers(notes, 0), (QHash<QString, int>{{u"a"_s, 1}, {u"c"_s, 2}}));
    const auto rows = noteRows(notesOfPage(notes, 0), pinNumbers(notes, 0), {}, telling());
    QCOMPARE(rows[0].number, u"1"_s);
    QCOMPARE(rows[1].number, QString());
    QCOMPARE(rows[2].number, u"2"_s);
}

void NoteRowsTest::aResolvedNoteKeepsItsNumber()
{
    QList<Note> notes{pinned(u"a"_s), pinned(u"b"_s)};
    notes[0].resolved = 1;
    QCOMPARE(pinNumbers(notes, 0), (QHash<QString, int>{{u"a"_s, 1}, {u"b"_s, 2}}));
}

void NoteRowsTest::halfAPlaceIsNoPin()
{
    Note note = pinned(u"a"_s);
    note.y.reset();
    QVERIFY(pinNumbers({note}, 0).isEmpty());
}

void NoteRowsTest::aRowSaysWhoAndWhen()
{
    Note note = aNote(u"a"_s);
    note.at = double(m_clock.now().addSecs(-18 * 60).toMSecsSinceEpoch());
    QCOMPARE(row(note).author, u"Teo"_s);
    QCOMPARE(row(note).when, u"18 min ago"_s);
    QCOMPARE(row(note).text, u"Text of a"_s);
    note.by = m_board.me.email;
    QCOMPARE(row(note).author, u"You"_s);
}

void NoteRowsTest::anEditedNoteSaysSo()
{
    Note note = aNote(u"a"_s);
    note.at = double(m_clock.now().toMSecsSinceEpoch());
    note.edited = note.at;
    QCOMPARE(row(note).when, u"just now · edited"_s);
}

void NoteRowsTest::aNoteOnTheWholeFileSaysSoBeforeTheTime()
{
    Note note = aNote(u"a"_s, {});
    note.at = double(m_clock.now().toMSecsSinceEpoch());
    QCOMPARE(row(note).when, u"Whole file · just now"_s);
}

void NoteRowsTest::aResolvedNoteNamesWhoResolvedIt()
{
    Note note = aNote(u"a"_s);
    QVERIFY(!row(note).resolved);
    QCOMPARE(row(note).resolveHelp, u"Resolve"_s);
    note.resolved = 1;
    note.resolved_by = u"mira@lanternhouse.example"_s;
    QVERIFY(row(note).resolved);
    QCOMPARE(row(note).resolveHelp, u"Resolved by Mira. Reopen it."_s);
}

void NoteRowsTest::zeroIsNotResolved()
{
    Note note = aNote(u"a"_s);
    note.resolved = 0;
    QVERIFY(!row(note).resolved);
    QCOMPARE(row(note).resolveHelp, u"Resolve"_s);
}

void NoteRowsTest::aRowIsBusyUnderItsOwnKey()
{
    Telling told = telling();
    told.busy = {u"a"_s, u"note"_s, u"n-b"_s};
    const auto rows = noteRows({aNote(u"a"_s), aNote(u"b"_s)}, {}, {u"a"_s}, told);
    QVERIFY(!rows[0].busy && rows[0].editing);
    QVERIFY(rows[1].busy && !rows[1].editing);
}

void NoteRowsTest::thePinGoesBeforeTheFinding()
{
    QCOMPARE(composerContext(true, u"A tent changed"_s, u"7"_s), u"Note pinned on page 7"_s);
    QCOMPARE(composerContext(true, {}, u"ii"_s), u"Note pinned on page ii"_s);
    QCOMPARE(composerContext(false, u"A tent changed"_s, u"7"_s), u"Note on: A tent changed"_s);
    QCOMPARE(composerContext(false, {}, u"7"_s), u"Note on page 7"_s);
}

void NoteRowsTest::thePlaceholderFollowsThePin()
{
    QCOMPARE(composerPlaceholder(false), u"Write a note for the report"_s);
    QCOMPARE(composerPlaceholder(true), u"Click the page where it goes…"_s);
}

void NoteRowsTest::aNoteWithoutEndIsCutForTheScreen()
{
    Note note = aNote(u"a"_s);
    note.text = QString(1'000'000, u'a');
    QCOMPARE(row(note).text, shownText(note.text));
}

QTEST_MAIN(NoteRowsTest)
#include "tst_noterows.moc"
