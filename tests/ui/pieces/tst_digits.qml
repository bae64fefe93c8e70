import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Digits"
    when: windowShown
    visible: true

    Component {
        id: digits
        Digits {}
    }

    function test_numbersOfAsManyDigitsAreAsWide() {
        const narrow = createTemporaryObject(digits, test, {text: "111"});
        const wide = createTemporaryObject(digits, test, {text: "888"});
        verify(narrow.width > 0);
        compare(narrow.width, wide.width);
        narrow.text = "1111";
        tryVerify(() => Math.abs(narrow.width - wide.width * 4 / 3) < 0.01);
    }

    function test_theyStandInTheirOrder() {
        const piece = createTemporaryObject(digits, test, {text: "274", size: 12, weight: Font.DemiBold});
        compare(piece.children[0].text + piece.children[1].text + piece.children[2].text, "274");
        compare(piece.children[0].font.pixelSize, 12);
        compare(piece.children[0].font.weight, Font.DemiBold);
    }

    function test_withoutANumberThereIsNothing() {
        compare(createTemporaryObject(digits, test).width, 0);
    }
}
