import QtQuick
import QtTest
import Vexal.Pieces
import Vexal.Inspector

TestCase {
    id: test
    name: "StateButton"
    when: windowShown
    visible: true
    width: 300
    height: 100

    Component {
        id: button
        StateButton {
            title: "Real issue"
            icon: "exclamationmark.triangle.fill"
            tone: Tone.Issue
        }
    }
    SignalSpy {
        id: clicked
        signalName: "clicked"
    }

    function make(properties) {
        const piece = createTemporaryObject(button, test, properties || {});
        clicked.target = piece;
        clicked.clear();
        return piece;
    }
    function label(piece) {
        return findChild(piece, "text");
    }

    function test_offItIsAFaintWashUnderItsInk() {
        const piece = make();
        const wash = findChild(piece, "wash");
        verify(wash.visible);
        compare(wash.color, Appearance.faded(Theme.issue.plain, 0.11));
        compare(label(piece).color, Theme.issue.ink);
        verify(!findChild(piece, "solid").visible);
        mouseMove(piece, 10, 10);
        compare(wash.color, Appearance.faded(Theme.issue.plain, 0.18));
        mousePress(piece, 10, 10);
        compare(wash.color, Appearance.faded(Theme.issue.plain, 0.24));
        mouseRelease(piece, 10, 10);
    }

    function test_onItIsSolidUnderWhite() {
        const piece = make({on: true});
        verify(!findChild(piece, "wash").visible);
        compare(findChild(piece, "solid").color, Theme.issue.solid);
        compare(label(piece).color, Theme.onSolid);
    }

    function test_itIsPaddedByNineAndFourAndAHalf() {
        const piece = make();
        const text = label(piece);
        compare(piece.implicitHeight, Math.ceil(text.implicitHeight) + 9);
        const row = text.parent;
        compare(piece.implicitWidth, Math.ceil(row.implicitWidth) + 18);
        compare(piece.radius, piece.height / 2);
    }

    function test_turningItOnMovesNothing() {
        const piece = make();
        const before = piece.implicitWidth;
        piece.on = true;
        compare(piece.implicitWidth, before);
        piece.busy = true;
        compare(piece.implicitWidth, before);
    }

    function test_itTellsWhetherItIsOn() {
        const piece = make();
        compare(piece.Accessible.role, Accessible.Button);
        compare(piece.Accessible.name, "Real issue");
        verify(piece.Accessible.checkable);
        verify(!piece.Accessible.checked);
        piece.on = true;
        verify(piece.Accessible.checked);
    }

    function test_itIsPressedByMouseKeyboardAndVoice() {
        const piece = make();
        mouseClick(piece);
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Return);
        piece.Accessible.pressAction();
        compare(clicked.count, 4);
        piece.busy = true;
        mouseClick(piece);
        piece.Accessible.pressAction();
        compare(clicked.count, 4);
    }
}
