import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Buttons"
    when: windowShown
    visible: true
    width: 400
    height: 200

    Component {
        id: bigButton
        BigButton {
            width: 240
            title: "Sync"
            icon: "arrow.triangle.2.circlepath"
        }
    }
    Component {
        id: pill
        Pill {
            title: "Mark reviewed"
            icon: "checkmark"
            tone: Tone.Reviewed
        }
    }
    Component {
        id: linkPill
        LinkPill {
            title: "Email"
            icon: "envelope"
        }
    }
    Component {
        id: iconButton
        IconButton {
            icon: "arrow.clockwise"
            help: "Refresh"
        }
    }
    Component {
        id: toolButton
        ToolButton {
            title: "Note"
        }
    }
    Component {
        id: checkBox
        CheckBox {
            title: "Difference"
        }
    }
    Component {
        id: textButton
        TextButton {
            title: "Stop"
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

    function test_aBusyBigButtonSaysThatItStartsAndTakesNoPress() {
        const piece = createTemporaryObject(bigButton, test);
        watch(piece, "clicked");
        compare(piece.height, 34);
        compare(piece.Accessible.name, "Sync");
        mouseClick(piece);
        compare(spy.count, 1);
        piece.busy = true;
        compare(piece.Accessible.name, "Starting…");
        compare(piece.width, 240);
        mouseClick(piece);
        compare(spy.count, 1);
    }

    function test_aBigButtonIsPalerUnderThePointerAndWhenDisabled() {
        const piece = createTemporaryObject(bigButton, test);
        const ground = findChild(piece, "solid");
        compare(ground.opacity, 1);
        mouseMove(piece, 20, 20);
        compare(ground.opacity, 0.9);
        piece.enabled = false;
        compare(piece.opacity, 0.45);
        compare(ground.opacity, 1);
    }

    function test_aPillIsWashedInItsTone() {
        const piece = createTemporaryObject(pill, test);
        const wash = findChild(piece, "wash");
        compare(wash.color, Theme.reviewed.plain);
        compare(wash.opacity, 0.10);
        mouseMove(piece, 10, 10);
        compare(wash.opacity, 0.16);
        mousePress(piece);
        compare(wash.opacity, 0.24);
        mouseRelease(piece);
    }

    function test_aFilledPillIsSolid() {
        const piece = createTemporaryObject(pill, test, {filled: true, tone: Tone.Accent});
        verify(!findChild(piece, "wash").visible);
        compare(findChild(piece, "solid").color, Theme.accent.solid);
        compare(piece.ink, Theme.onSolid);
    }

    function test_aPillIsPaddedByTenAndFive() {
        const piece = createTemporaryObject(pill, test, {icon: ""});
        const text = findChild(piece, "text");
        compare(piece.implicitWidth, Math.ceil(text.implicitWidth) + 20);
        compare(piece.implicitHeight, Math.ceil(text.implicitHeight) + 10);
    }

    function test_aBusyPillKeepsItsWidth() {
        failOnWarning(/TypeError/);
        const piece = createTemporaryObject(pill, test);
        waitForRendering(piece);
        const before = piece.implicitWidth;
        piece.busy = true;
        piece.title = "Opening…";
        waitForRendering(piece);
        compare(piece.implicitWidth, before);
        piece.busy = false;
        tryVerify(() => piece.implicitWidth < before);
    }

    function test_aPillWithoutALinkIsDimmedSaysSoAndDoesNothing() {
        const piece = createTemporaryObject(linkPill, test);
        watch(piece, "opened");
        compare(piece.opacity, 0.7);
        compare(piece.help, "Not found");
        compare(piece.Accessible.description, "Not found");
        mouseClick(piece);
        piece.Accessible.pressAction();
        compare(spy.count, 0);
    }

    function test_aPillWithALinkAsksForItToBeOpened() {
        const piece = createTemporaryObject(linkPill, test, {url: "https://mail.lanternhouse.example/?q=a%20b#c"});
        watch(piece, "opened");
        compare(piece.opacity, 1);
        compare(piece.help, "");
        mouseClick(piece);
        compare(spy.count, 1);
        compare(spy.signalArguments[0][0], "https://mail.lanternhouse.example/?q=a%20b#c");
    }

    function test_anIconButtonIsCalledByWhatItDoes() {
        const piece = createTemporaryObject(iconButton, test);
        compare(piece.Accessible.name, "Refresh");
        compare(piece.implicitWidth, 26);
        piece.enabled = false;
        compare(piece.opacity, 0.35);
    }

    function test_aToolButtonTellsWhetherItsToolIsOn() {
        const piece = createTemporaryObject(toolButton, test);
        verify(!piece.Accessible.checked);
        verify(!findChild(piece, "solid").visible);
        piece.on = true;
        verify(piece.Accessible.checked);
        verify(findChild(piece, "solid").visible);
        compare(piece.implicitHeight, 26);
    }

    function test_aCheckBoxAsksToBeToggled() {
        const piece = createTemporaryObject(checkBox, test);
        watch(piece, "toggled");
        mouseClick(piece);
        compare(spy.signalArguments[0][0], true);
        verify(!piece.checked);
        piece.checked = true;
        piece.Accessible.toggleAction();
        compare(spy.signalArguments[1][0], false);
        verify(piece.Accessible.checked);
    }

    function test_aTextButtonIsAsLargeAsItsWords() {
        const piece = createTemporaryObject(textButton, test);
        watch(piece, "clicked");
        compare(piece.Accessible.name, "Stop");
        verify(piece.implicitWidth > 10 && piece.implicitWidth < 40);
        mouseClick(piece);
        compare(spy.count, 1);
    }
}
