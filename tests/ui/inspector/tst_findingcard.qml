import QtQuick
import QtTest
import Vexal.Pieces
import Vexal.Inspector
import Vexal.Gallery

TestCase {
    id: test
    name: "FindingCard"
    when: windowShown
    visible: true
    width: 330
    height: 400

    Component {
        id: focusedCard
        FindingCard {
            width: 298
            row: ReviewRows.focused
        }
    }
    Component {
        id: openCard
        FindingCard {
            width: 298
            row: ReviewRows.open
        }
    }
    Component {
        id: fineCard
        FindingCard {
            width: 298
            row: ReviewRows.fine
        }
    }
    Component {
        id: compactCard
        FindingCard {
            width: 298
            row: ReviewRows.settled
            compact: true
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
    function text(card, name) {
        return findChild(card, name).text;
    }

    function test_itSaysWhatWasFound() {
        const card = createTemporaryObject(focusedCard, test);
        compare(text(card, "tag"), "Fix");
        compare(findChild(card, "tag").color, Theme.issue.ink);
        compare(text(card, "title"), "“lantern” reads “lantem”");
        compare(text(card, "detail"), "The r and n have run together on line 2.");
        compare(text(card, "ours"), "lit every lantern");
        compare(text(card, "theirs"), "lit every lantem");
        compare(text(card, "judged"), "Mira · 6 min ago");
        verify(findChild(card, "issue").on);
        verify(!findChild(card, "fine").on);
        verify(findChild(card, "scope").visible);
    }

    function test_theFocusIsAnOutlineOfItsSeverity() {
        const card = createTemporaryObject(focusedCard, test);
        const outline = findChild(card, "focusOutline");
        compare(outline.border.width, 1.5);
        compare(outline.border.color, Theme.issue.plain);
        compare(outline.opacity, 0.45);
        compare(outline.radius, 12);
        verify(card.Accessible.selected);
        compare(findChild(createTemporaryObject(openCard, test), "focusOutline").opacity, 0);
    }

    function test_whatIsNotKnownIsNotShown() {
        const card = createTemporaryObject(openCard, test);
        verify(!findChild(card, "ours"));
        verify(!findChild(card, "judged").visible);
        compare(text(card, "tag"), "Check");
    }

    function test_aCompactCardIsItsTitleAndItsButtons() {
        const card = createTemporaryObject(compactCard, test);
        verify(!findChild(card, "tag").visible);
        verify(!findChild(card, "detail").visible);
        verify(findChild(card, "title").visible);
        verify(findChild(card, "issue").visible);
        verify(findChild(card, "note").visible);
        verify(card.height < 80);
    }

    function test_judgedFineItIsDimmedUntilSomebodyIsAtIt() {
        const card = createTemporaryObject(fineCard, test);
        compare(card.opacity, 0.72);
        compare(findChild(card, "judged").color, Theme.tint(Tone.Neutral).plain);
        mouseMove(card, 100, 10);
        compare(card.opacity, 1);
        mouseMove(test, 320, 390);
        compare(card.opacity, 0.72);
        findChild(card, "fine").forceActiveFocus(Qt.TabFocusReason);
        compare(card.opacity, 1);
    }

    function test_aClickAnywhereAsksForTheFocus() {
        const card = createTemporaryObject(openCard, test);
        watch(card, "focusRequested");
        mouseClick(card, 5, 5);
        mouseClick(findChild(card, "detail"));
        card.Accessible.pressAction();
        card.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Space);
        compare(spy.count, 5);
    }

    function test_theButtonsAskForAJudgementAndFocusNothing() {
        const card = createTemporaryObject(openCard, test);
        watch(card, "focusRequested");
        mouseClick(findChild(card, "issue"));
        compare(spy.count, 0);
        watch(card, "judged");
        mouseClick(findChild(card, "issue"));
        mouseClick(findChild(card, "fine"));
        compare(spy.signalArguments[0][0], "issue");
        compare(spy.signalArguments[1][0], "fine");
    }

    function test_theBubbleAsksForANote() {
        const card = createTemporaryObject(openCard, test);
        const bubble = findChild(card, "note");
        compare(bubble.help, "Add a note to this");
        watch(card, "noteRequested");
        mouseClick(bubble);
        compare(spy.count, 1);
    }

    function test_itIsSpoken() {
        const card = createTemporaryObject(openCard, test);
        compare(card.Accessible.role, Accessible.ListItem);
        compare(card.Accessible.name, "A lantern is gone from the line");
        compare(card.Accessible.description, "Check. Ours has five lanterns on the line; this page has four.");
        verify(!card.Accessible.selected);
    }

    function test_theKeyboardShowsARing() {
        const card = createTemporaryObject(openCard, test);
        const ring = findChild(card, "focusRing");
        verify(!ring.visible);
        card.forceActiveFocus(Qt.TabFocusReason);
        verify(ring.visible);
        compare(ring.radius, 16);
    }
}
