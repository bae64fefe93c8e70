import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Pressable"
    when: windowShown
    visible: true
    width: 200
    height: 100

    Component {
        id: pressable
        Pressable {
            width: 80
            height: 30
            name: "Save"
            help: "Keeps the note"
        }
    }
    SignalSpy {
        id: clicks
        signalName: "clicked"
    }

    property Pressable piece: null

    function init() {
        piece = createTemporaryObject(pressable, test);
        clicks.target = piece;
        clicks.clear();
    }

    function test_aClickPressesIt() {
        mouseClick(piece);
        compare(clicks.count, 1);
    }

    function test_itShrinksWhileItIsPressed() {
        compare(piece.scale, 1);
        mousePress(piece);
        compare(piece.scale, 0.985);
        mouseRelease(piece);
        compare(piece.scale, 1);
    }

    function test_aPressThatLeavesItIsTakenBack() {
        mousePress(piece);
        mouseMove(piece, 150, 80);
        verify(!piece.pressed);
        mouseRelease(piece, 150, 80);
        compare(clicks.count, 0);
    }

    function test_thePointerIsNoticed() {
        mouseMove(piece, 10, 10);
        verify(piece.hovered);
        mouseMove(test, 190, 90);
        verify(!piece.hovered);
    }

    function test_theKeyboardPressesIt_data() {
        return [
            {tag: "space", key: Qt.Key_Space},
            {tag: "return", key: Qt.Key_Return},
            {tag: "enter", key: Qt.Key_Enter}
        ];
    }

    function test_theKeyboardPressesIt(row) {
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyClick(row.key);
        compare(clicks.count, 1);
    }

    function test_spacePressesOnRelease() {
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyPress(Qt.Key_Space);
        verify(piece.pressed);
        compare(clicks.count, 0);
        keyRelease(Qt.Key_Space);
        compare(clicks.count, 1);
        verify(!piece.pressed);
    }

    function test_losingTheKeyboardTakesThePressBack() {
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyPress(Qt.Key_Space);
        test.forceActiveFocus();
        verify(!piece.pressed);
        keyRelease(Qt.Key_Space);
        compare(clicks.count, 0);
    }

    function test_aRingShowsWhereTheKeyboardIs() {
        const ring = findChild(piece, "focusRing");
        verify(!ring.visible);
        piece.forceActiveFocus(Qt.TabFocusReason);
        verify(ring.visible);
        compare(ring.width, piece.width + 8);
        compare(ring.border.width, 2);
    }

    function test_aClickDoesNotTakeTheKeyboard() {
        mouseClick(piece);
        verify(!piece.activeFocus);
    }

    function test_itIsSpokenAndPressedByVoice() {
        compare(piece.Accessible.role, Accessible.Button);
        compare(piece.Accessible.name, "Save");
        compare(piece.Accessible.description, "Keeps the note");
        piece.Accessible.pressAction();
        compare(clicks.count, 1);
    }

    function test_nothingPressesItWhileItIsBusyOrDisabled_data() {
        return [
            {tag: "busy", busy: true, enabled: true},
            {tag: "disabled", busy: false, enabled: false}
        ];
    }

    function test_nothingPressesItWhileItIsBusyOrDisabled(row) {
        piece.forceActiveFocus(Qt.TabFocusReason);
        piece.busy = row.busy;
        piece.enabled = row.enabled;
        mouseClick(piece);
        keyClick(Qt.Key_Space);
        keyClick(Qt.Key_Return);
        piece.Accessible.pressAction();
        compare(clicks.count, 0);
        mouseMove(piece, 10, 10);
        verify(!piece.hovered);
    }
}
