import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Choices"
    when: windowShown
    visible: true
    width: 500
    height: 100

    Component {
        id: segments
        SegmentedControl {
            titles: ["Side by side", "Overlay", "Blink"]
            name: "View"
        }
    }
    Component {
        id: slider
        Slider {
            value: 0.5
            name: "Opacity"
            help: "How much of ours shows through"
        }
    }
    SignalSpy {
        id: spy
    }

    function watch(item, name) {
        spy.target = null;
        spy.signalName = name;
        spy.target = item;
        spy.clear();
    }

    function test_aCellIsChosenByAClick() {
        const piece = createTemporaryObject(segments, test);
        watch(piece, "chosen");
        mouseClick(piece, piece.width - 10, 13);
        compare(spy.count, 1);
        compare(spy.signalArguments[0][0], 2);
        compare(piece.current, 0);
    }

    function test_theChosenCellIsNotChosenAgain() {
        const piece = createTemporaryObject(segments, test);
        watch(piece, "chosen");
        mouseClick(piece, 10, 13);
        compare(spy.count, 0);
    }

    function test_theArrowsChooseTheNeighbours() {
        const piece = createTemporaryObject(segments, test, {current: 1});
        watch(piece, "chosen");
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Left);
        compare(spy.signalArguments[0][0], 2);
        compare(spy.signalArguments[1][0], 0);
        piece.current = 2;
        keyClick(Qt.Key_Right);
        compare(spy.count, 2);
    }

    function test_choosingMovesNothing() {
        const piece = createTemporaryObject(segments, test);
        const before = piece.implicitWidth;
        piece.current = 2;
        compare(piece.implicitWidth, before);
        compare(piece.implicitHeight, 26);
    }

    function test_theCellsAreSpokenAndPressedByVoice() {
        const piece = createTemporaryObject(segments, test);
        watch(piece, "chosen");
        compare(piece.Accessible.name, "View");
        const cell = findChild(piece, "cell1");
        compare(cell.Accessible.name, "Overlay");
        verify(!cell.Accessible.selected);
        cell.Accessible.pressAction();
        compare(spy.signalArguments[0][0], 1);
    }

    function test_aDisabledControlChoosesNothing() {
        const piece = createTemporaryObject(segments, test, {enabled: false});
        watch(piece, "chosen");
        mouseClick(piece, piece.width - 10, 13);
        findChild(piece, "cell1").Accessible.pressAction();
        compare(spy.count, 0);
        compare(piece.opacity, 0.45);
    }

    function test_theSliderGoesWhereItIsPressed() {
        const piece = createTemporaryObject(slider, test);
        watch(piece, "moved");
        compare(piece.implicitWidth, 110);
        mousePress(piece, 7, 10);
        compare(spy.signalArguments[0][0], 0);
        mouseMove(piece, 103, 10);
        compare(spy.signalArguments[1][0], 1);
        mouseMove(piece, 400, 10);
        mouseRelease(piece, 400, 10);
        for (let i = 0; i < spy.count; ++i)
            verify(spy.signalArguments[i][0] >= 0 && spy.signalArguments[i][0] <= 1);
    }

    function test_theSliderStepsByKeyboardAndVoice() {
        const piece = createTemporaryObject(slider, test);
        watch(piece, "moved");
        piece.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        piece.Accessible.decreaseAction();
        fuzzyCompare(spy.signalArguments[0][0], 0.55, 1e-9);
        fuzzyCompare(spy.signalArguments[1][0], 0.45, 1e-9);
        piece.value = 1;
        keyClick(Qt.Key_Right);
        compare(spy.count, 2);
    }
}
