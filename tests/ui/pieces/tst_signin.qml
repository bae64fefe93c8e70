import QtQuick
import QtTest
import Vexal.Pieces
import Vexal.Root

TestCase {
    id: test
    name: "SignIn"
    when: windowShown
    visible: true
    width: 1000
    height: 700

    Component {
        id: screen
        SignInView {
            width: 1000
            height: 700
            working: false
            emailDomain: "lanternhouse.example"
            dedication: "For Mira and Teo."
        }
    }
    SignalSpy {
        id: cancels
        signalName: "cancelRequested"
    }
    SignalSpy {
        id: links
        signalName: "linkRequested"
    }
    SignalSpy {
        id: requests
        signalName: "signInRequested"
    }

    function cleanup() {
        Appearance.resting = false;
        Appearance.reducedMotion = false;
    }

    function text(piece, name) {
        return findChild(piece, name).text;
    }

    function test_itSaysWhatItIs() {
        const piece = createTemporaryObject(screen, test);
        compare(text(piece, "name"), "Vexal");
        compare(text(piece, "tagline"), "Supplier proofs, checked against what we sent.");
        compare(text(piece, "hint"),
                "Google opens on its own page.\nSign in there with your @lanternhouse.example account.");
        compare(text(piece, "dedication"), "For Mira and Teo.");
        const foot = findChild(piece, "dedication");
        compare(foot.y + foot.height, 700 - 18);
    }

    function test_theButtonAsksToSignIn() {
        const piece = createTemporaryObject(screen, test);
        requests.target = piece;
        requests.clear();
        const button = findChild(piece, "button");
        compare(button.Accessible.name, "Sign in with Google");
        compare(button.height, 44);
        mouseClick(button);
        compare(requests.count, 1);
    }

    function test_whileItWorksTheButtonSaysSoAndKeepsItsSize() {
        const piece = createTemporaryObject(screen, test);
        requests.target = piece;
        requests.clear();
        const button = findChild(piece, "button");
        const before = button.width;
        piece.working = true;
        compare(button.Accessible.name, "Opening Google…");
        compare(button.width, before);
        compare(button.opacity, 1);
        mouseClick(button);
        compare(requests.count, 1); // begins anew
    }

    function test_whileItWorksItCanBeCancelledOrOpenedElsewhere() {
        const piece = createTemporaryObject(screen, test);
        const cancel = findChild(piece, "cancel");
        const link = findChild(piece, "link");
        verify(!cancel.enabled);
        piece.working = true;
        tryCompare(cancel.parent, "opacity", 1);
        verify(!link.visible);
        piece.canCopyLink = true;
        verify(link.visible);
        cancels.target = piece;
        links.target = piece;
        cancel.press();
        compare(cancels.count, 1);
        link.press();
        compare(links.count, 1);
    }

    function test_theTwoFilesMeet() {
        const piece = createTemporaryObject(screen, test);
        const left = findChild(piece, "ours");
        verify(left.opacity < 1);
        verify(left.away < 0);
        tryCompare(left, "opacity", 1);
        tryCompare(left, "away", 0);
        compare(findChild(piece, "theirs").away, 0);
    }

    function test_aPhotographShowsTheEndOfTheEntrance() {
        Appearance.resting = true;
        const piece = createTemporaryObject(screen, test);
        compare(findChild(piece, "ours").opacity, 1);
        compare(findChild(piece, "ours").away, 0);
    }

    function test_withReducedMotionTheMarkOnlyFades() {
        Appearance.reducedMotion = true;
        const piece = createTemporaryObject(screen, test);
        compare(findChild(piece, "ours").away, 0);
        verify(findChild(piece, "ours").opacity < 1);
    }
}
