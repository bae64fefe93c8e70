import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Motion"
    when: windowShown
    visible: true
    width: 200
    height: 100

    Component {
        id: spinner
        Spinner {
            size: 24
        }
    }
    Component {
        id: mark
        VexalMark {
            size: 40
        }
    }

    function cleanup() {
        Appearance.resting = false;
        Appearance.reducedMotion = false;
        Appearance.seen = true;
    }

    function test_theSpinnerTurnsAsLongAsItIsSeen() {
        const piece = createTemporaryObject(spinner, test);
        verify(piece.turning);
        piece.visible = false;
        verify(!piece.turning);
        piece.visible = true;
        Appearance.seen = false;
        verify(!piece.turning);
        Appearance.seen = true;
        Appearance.reducedMotion = true;
        verify(piece.turning);
        Appearance.resting = true;
        verify(!piece.turning);
    }

    function test_theSpinnersLineIsAnEighthButNeverTooThin() {
        const piece = createTemporaryObject(spinner, test);
        compare(piece.lineWidth(24), 3);
        compare(piece.lineWidth(10), 1.6);
        compare(piece.implicitWidth, 24);
    }

    function test_twoSpinnersAtRestAreTheSamePicture() {
        Appearance.resting = true;
        const one = grabImage(createTemporaryObject(spinner, test));
        const other = grabImage(createTemporaryObject(spinner, test, {x: 100}));
        verify(one.equals(other));
    }

    function test_theMarksHalvesStandApart() {
        const piece = createTemporaryObject(mark, test);
        compare(piece.gap, 4);
        compare(piece.implicitWidth, 44);
        compare(piece.stroke, 3.4);
        compare(createTemporaryObject(mark, test, {size: 12}).stroke, 1.4);
        compare(createTemporaryObject(mark, test, {line: 2}).stroke, 2);
    }

    function test_theMarkPulsesWhileItWorks() {
        const piece = createTemporaryObject(mark, test, {working: true});
        tryVerify(() => piece.gap > 6);
        verify(piece.gap <= 12);
        compare(piece.implicitWidth, 52);
        piece.working = false;
        compare(piece.gap, 4);
    }

    function test_theMarkStandsStillWhereMotionIsReduced() {
        Appearance.reducedMotion = true;
        const piece = createTemporaryObject(mark, test, {working: true});
        verify(!piece.pulsing);
        compare(piece.gap, 4);
    }
}
