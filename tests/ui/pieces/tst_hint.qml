import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Hint"
    when: windowShown
    visible: true
    width: 300
    height: 200

    IconButton {
        id: middle
        x: 100
        y: 60
        icon: "arrow.clockwise"
        help: "Refresh"
    }
    IconButton {
        id: corner
        x: 274
        y: 174
        icon: "ellipsis"
        help: "More of what can be done here"
    }
    HintLayer {
        id: layer
    }

    function init() {
        Hints.delay = 1;
        Hints.grace = 0;
        Appearance.resting = true;
        mouseMove(test, 1, 1);
        compare(Hints.target, null);
        tryVerify(() => !Hints._warm);
    }
    function cleanup() {
        mouseMove(test, 1, 1);
        Hints.delay = 600;
        Hints.grace = 300;
        Appearance.resting = false;
    }

    function test_itWaitsUntilThePointerHasRested() {
        Hints.delay = 100000;
        mouseMove(middle, 5, 5);
        compare(Hints.target, null);
    }

    function test_itLiesUnderItsPiece() {
        const panel = findChild(layer, "panel");
        mouseMove(middle, 5, 5);
        tryCompare(Hints, "target", middle);
        compare(Hints.text, "Refresh");
        tryVerify(() => panel.visible);
        compare(panel.y, 60 + 26 + 7);
        verify(Math.abs(panel.x + panel.width / 2 - 113) <= 1);
    }

    function test_itNeverLeavesTheWindow() {
        const panel = findChild(layer, "panel");
        mouseMove(corner, 5, 5);
        tryCompare(Hints, "target", corner);
        compare(panel.x + panel.width, 300 - 8);
        verify(panel.y + panel.height <= 174);
    }

    function test_itGoesWithThePointer() {
        mouseMove(middle, 5, 5);
        tryCompare(Hints, "target", middle);
        mouseMove(test, 1, 1);
        compare(Hints.target, null);
        verify(!findChild(layer, "panel").visible);
    }

    function test_theNextOneComesAtOnce() {
        mouseMove(middle, 5, 5);
        tryCompare(Hints, "target", middle);
        Hints.delay = 100000;
        Hints.grace = 100000;
        mouseMove(corner, 5, 5);
        compare(Hints.target, corner);
    }
}
