import QtQuick
import QtTest
import Vexal.Pieces
import Vexal.Inspector
import Vexal.Gallery

TestCase {
    id: test
    name: "Notes"
    when: windowShown
    visible: true
    width: 330
    height: 500

    Component {
        id: pinned
        NoteRow {
            width: 298
            row: ReviewRows.pinned
        }
    }
    Component {
        id: resolved
        NoteRow {
            width: 298
            row: ReviewRows.resolved
        }
    }
    Component {
        id: edited
        NoteRow {
            width: 298
            row: ReviewRows.edited
            draft: "Five lanterns, please."
        }
    }
    Component {
        id: composer
        Composer {
            width: 322
            view: ReviewRows.onPage
            text: ""
        }
    }
    Component {
        id: pinnedComposer
        Composer {
            width: 322
            view: ReviewRows.onPin
            text: "The fifth lantern is missing"
        }
    }
    Component {
        id: posting
        Composer {
            width: 322
            view: ReviewRows.onItsWay
            text: "The fifth lantern is missing"
        }
    }
    Component {
        id: fold
        FoldLine {
            width: 298
            text: "3 checks passed"
        }
    }
    Component {
        id: page
        OtherPageRow {
            width: 298
            row: ReviewRows.other
        }
    }
    SignalSpy {
        id: spy
    }

    function init() {
        Appearance.resting = true;
    }
    function cleanup() {
        Appearance.resting = false;
    }
    function watch(item, name) {
        spy.target = null;
        spy.signalName = name;
        spy.target = item;
        spy.clear();
    }

    function test_aPinnedNoteCarriesItsNumberAndItsTextStandsUnderTheName() {
        const row = createTemporaryObject(pinned, test);
        const badge = findChild(row, "badge");
        verify(badge.visible);
        compare(badge.width, 16);
        compare(badge.color, Theme.accent.solid);
        compare(findChild(row, "text").x, 23);
        verify(!findChild(createTemporaryObject(resolved, test), "badge").visible);
        compare(findChild(createTemporaryObject(resolved, test), "text").x, 0);
    }

    function test_aResolvedNoteIsStruckThrough() {
        const row = createTemporaryObject(resolved, test);
        const text = findChild(row, "text");
        verify(text.font.strikeout);
        compare(text.color, Theme.secondary);
        compare(text.font.pixelSize, 13);
        verify(!findChild(createTemporaryObject(pinned, test), "text").font.strikeout);
    }

    function test_theTextCanBeSelectedButNotChanged() {
        const text = findChild(createTemporaryObject(pinned, test), "text");
        verify(text.selectByMouse);
        verify(text.readOnly);
        compare(text.textFormat, TextEdit.PlainText);
        mouseDoubleClickSequence(text, 10, 8);
        compare(text.selectedText, "Ask");
    }

    function test_theRingResolvesAndTheCheckReopens() {
        const row = createTemporaryObject(pinned, test);
        watch(row, "resolveRequested");
        compare(findChild(row, "resolve").help, "Resolve");
        mouseClick(findChild(row, "resolve"));
        compare(spy.signalArguments[0][0], true);
        const done = createTemporaryObject(resolved, test);
        watch(done, "resolveRequested");
        verify(findChild(done, "resolve").Accessible.checked);
        mouseClick(findChild(done, "resolve"));
        compare(spy.signalArguments[0][0], false);
    }

    function test_theMenuAsksForAnEditOrForDeletion() {
        const row = createTemporaryObject(pinned, test);
        watch(row, "editRequested");
        mouseClick(findChild(row, "more"));
        keyClick(Qt.Key_Return);
        compare(spy.count, 1);
        watch(row, "deleteRequested");
        mouseClick(findChild(row, "more"));
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        verify(row.confirmDelete);
        keyClick(Qt.Key_Escape);
        verify(!row.confirmDelete);
        compare(spy.count, 0);
        row.confirmDelete = true;
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        compare(spy.count, 1);
    }

    function test_theEditorBeginsWithTheDraftAndTellsEveryChange() {
        const row = createTemporaryObject(edited, test);
        verify(!findChild(row, "text").visible);
        const edit = findChild(row, "edit");
        compare(edit.text, "Five lanterns, please.");
        verify(!edit.activeFocus); // nobody has just asked for it
        edit.forceActiveFocus();
        watch(row, "typed");
        keyClick("x");
        compare(spy.signalArguments[0][0], "Five lanterns, please.x");
    }

    function test_theEditorSavesAndCancels() {
        const row = createTemporaryObject(edited, test);
        watch(row, "editSaved");
        mouseClick(findChild(row, "save"));
        findChild(row, "edit").forceActiveFocus();
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        compare(spy.count, 2);
        findChild(row, "edit").text = " \n ";
        verify(!findChild(row, "save").enabled);
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        compare(spy.count, 2);
        watch(row, "editCancelled");
        mouseClick(findChild(row, "cancel"));
        compare(spy.count, 1);
    }

    function test_theComposerIsPaddedByTwelve() {
        const piece = createTemporaryObject(composer, test);
        const field = findChild(piece, "field");
        const at = field.mapToItem(piece, 0, 0);
        compare(at.x, 12);
        compare(field.width, 298);
        compare(field.height, 54);
        const post = findChild(piece, "post");
        const foot = post.mapToItem(piece, post.width, post.height);
        compare(foot.x, 310);
        compare(piece.height - foot.y, 12);
        compare(findChild(piece, "context").mapToItem(piece, 0, 0).y, 12);
    }

    function test_anEmptyComposerPostsNothing() {
        const piece = createTemporaryObject(composer, test);
        watch(piece, "posted");
        const post = findChild(piece, "post");
        verify(!post.enabled);
        compare(post.opacity, 0.45);
        piece.write();
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        compare(spy.count, 0);
        keyClick("a");
        verify(post.enabled);
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        mouseClick(post);
        compare(spy.count, 2);
    }

    function test_aPlaceCanBeCleared() {
        verify(!findChild(createTemporaryObject(composer, test), "clear").visible);
        const piece = createTemporaryObject(pinnedComposer, test);
        compare(findChild(piece, "context").text, "Note pinned on page 7");
        watch(piece, "cleared");
        mouseClick(findChild(piece, "clear"));
        compare(spy.count, 1);
    }

    function test_whileItIsOnItsWayTheComposerStepsBackAndTakesNothing() {
        const piece = createTemporaryObject(posting, test);
        watch(piece, "posted");
        compare(piece.opacity, 0.7);
        const post = findChild(piece, "post");
        compare(post.title, "Posting…");
        verify(post.busy);
        piece.write();
        keyClick("a");
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        mouseClick(post);
        compare(spy.count, 0);
        compare(findChild(piece, "edit").text, "The fifth lantern is missing");
    }

    function test_theFoldTurnsItsChevronAndSaysWhetherItIsOpen() {
        const piece = createTemporaryObject(fold, test);
        const chevron = findChild(piece, "chevron");
        compare(chevron.rotation, 0);
        compare(piece.Accessible.description, "folded");
        piece.open = true;
        compare(chevron.rotation, 90);
        compare(piece.Accessible.description, "unfolded");
    }

    function test_anotherPageIsCalledByItsPageAndItsCount() {
        const piece = createTemporaryObject(page, test);
        compare(piece.Accessible.name, "Page 9, 2 to look at");
        watch(piece, "clicked");
        mouseClick(piece);
        piece.Accessible.pressAction();
        compare(spy.count, 2);
    }
}
