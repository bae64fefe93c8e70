import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Toast"
    when: windowShown
    visible: true
    width: 400
    height: 100

    Component {
        id: toast
        ToastView {
            toastId: "one"
            text: "Marked a real issue."
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
    function cleanup() {
        Appearance.resting = false;
    }

    function test_itStaysForFourSeconds() {
        const piece = createTemporaryObject(toast, test);
        const timer = findChild(piece, "timer");
        compare(timer.interval, 4000);
        verify(timer.running);
        verify(!timer.repeat);
    }

    function test_itAsksForItsOwnEnd() {
        const piece = createTemporaryObject(toast, test, {stay: 1});
        watch(piece, "expired");
        tryCompare(spy, "count", 1);
        compare(spy.signalArguments[0][0], "one");
    }

    function test_aYoungerToastHasItsOwnTime() {
        const piece = createTemporaryObject(toast, test);
        watch(piece, "expired");
        const timer = findChild(piece, "timer");
        timer.stop();
        piece.toastId = "two";
        verify(timer.running);
        piece.stay = 1;
        tryCompare(spy, "count", 1);
        compare(spy.signalArguments[0][0], "two");
    }

    function test_timeStandsStillForAPhotograph() {
        Appearance.resting = true;
        const piece = createTemporaryObject(toast, test);
        const timer = findChild(piece, "timer");
        verify(!timer.running);
        piece.toastId = "two";
        verify(!timer.running);
    }

    function test_theWayBackIsThereOnlyWithALabel() {
        const piece = createTemporaryObject(toast, test);
        const plain = piece.implicitWidth;
        verify(!findChild(piece, "undo").visible);
        piece.undoLabel = "Undo";
        tryVerify(() => piece.implicitWidth > plain);
        watch(piece, "undone");
        mouseClick(findChild(piece, "undo"));
        compare(spy.signalArguments[0][0], "one");
    }

    function test_theTextIsPaddedAndSpoken() {
        const piece = createTemporaryObject(toast, test);
        const text = findChild(piece, "text");
        compare(piece.implicitWidth, Math.ceil(text.implicitWidth) + 32);
        compare(piece.implicitHeight, Math.ceil(text.implicitHeight) + 20);
        compare(piece.Accessible.role, Accessible.Notification);
        compare(piece.Accessible.name, "Marked a real issue.");
    }
}
