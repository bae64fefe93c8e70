import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    name: "Theme"

    function cleanup() {
        Appearance.dark = false;
        Appearance.resting = false;
        Appearance.reducedMotion = false;
        Appearance.seen = true;
    }

    function test_coloursFollowTheAppearance() {
        compare(Theme.text, "#0f0b0a");
        compare(Theme.accent.plain, "#e4572e");
        compare(Theme.tint(Tone.Reviewed).ink, "#246e45");
        Appearance.dark = true;
        compare(Theme.text, "#f3f1ec");
        compare(Theme.accent.plain, "#f06a3f");
        compare(Theme.tint(Tone.Reviewed).ink, "#45b97a");
    }

    function test_aNewFileWearsTheAccent() {
        compare(Theme.newFile.plain, Theme.accent.plain);
    }

    function test_withReducedMotionThingsFadeOnly() {
        compare(Theme.move, 320);
        Appearance.reducedMotion = true;
        compare(Theme.move, 0);
        compare(Theme.fade, 320);
        verify(Theme.lively);
        verify(!Theme.playful);
    }

    function test_atRestNothingMoves() {
        Appearance.resting = true;
        compare(Theme.move, 0);
        compare(Theme.fade, 0);
        verify(!Theme.lively);
    }

    function test_whatNobodySeesDoesNotMoveForEver() {
        Appearance.seen = false;
        verify(!Theme.lively);
        compare(Theme.move, 320);
    }
}
