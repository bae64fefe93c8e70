import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "WorkingLine"
    when: windowShown
    visible: true
    width: 400
    height: 100

    Component {
        id: line
        WorkingLine {
            width: 400
            who: "Claude"
        }
    }

    function cleanup() {
        Appearance.resting = false;
        Appearance.reducedMotion = false;
        Appearance.seen = true;
    }

    function test_thePhrasesComeInTurnAndBeginAnew() {
        Appearance.resting = true;
        const piece = createTemporaryObject(line, test);
        const phrases = ["reading the fine print", "squinting at kerning", "checking the quote marks", "counting the lines", "holding it up to the light", "reading the fine print"];
        for (const phrase of phrases) {
            compare(piece.text, "Claude is " + phrase);
            compare(piece.Accessible.name, piece.text);
            piece.n += 1;
        }
        compare(piece.font.weight, Font.DemiBold);
    }

    function test_aPhraseStaysForThreeSecondsAndGivesWay() {
        const piece = createTemporaryObject(line, test);
        compare(piece.stay, 3000);
        compare(piece.n, 0);
        piece.stay = 1;
        tryVerify(() => piece.n >= 2);
    }

    function test_unseenItRests() {
        const unseen = createTemporaryObject(line, test, {stay: 1, visible: false});
        const seen = createTemporaryObject(line, test, {stay: 1});
        tryVerify(() => seen.n >= 3);
        compare(unseen.n, 0);
        compare(unseen.phase, -1);
    }

    function test_theLightPassesFromSideToSide() {
        const piece = createTemporaryObject(line, test);
        compare(piece.sweep, 1600);
        compare(piece.strength, 0.85);
        tryVerify(() => piece.phase > -1);
        Appearance.reducedMotion = true;
        compare(piece.phase, -1);
    }

    function test_aShorterPhraseLeavesTheRoomOfALongerOne() {
        Appearance.resting = true;
        const piece = createTemporaryObject(line, test, {width: 190, n: 4});
        const room = piece.height;
        piece.n = 3;
        verify(piece.implicitHeight < room);
        compare(piece.height, room);
    }
}
