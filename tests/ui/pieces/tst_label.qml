import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Label"
    when: windowShown
    visible: true
    width: 300
    height: 100

    Component {
        id: label
        Label {}
    }

    function test_whatComesFromOutsideIsNeverMarkup() {
        const plain = createTemporaryObject(label, test, {text: "<b>bold</b><img src='x'>"});
        compare(plain.textFormat, Text.PlainText);
        const bare = createTemporaryObject(label, test, {text: "bold"});
        verify(plain.implicitWidth > 3 * bare.implicitWidth);
    }

    function test_longTextIsCutWithAnEllipsis() {
        const cut = createTemporaryObject(label, test, {text: "The Lantern Fox Interior", width: 60});
        verify(cut.truncated);
    }

    function test_aLabelInsideAButtonIsNotSpoken() {
        const spoken = createTemporaryObject(label, test, {text: "Teo"});
        compare(spoken.Accessible.name, "Teo");
        compare(spoken.Accessible.role, Accessible.StaticText);
        verify(!spoken.Accessible.ignored);
        const silent = createTemporaryObject(label, test, {text: "Teo", spoken: false});
        verify(silent.Accessible.ignored);
    }

    function test_largeTextIsSetTighter() {
        compare(createTemporaryObject(label, test, {size: 13}).font.letterSpacing, 0);
        verify(createTemporaryObject(label, test, {size: 27}).font.letterSpacing < 0);
        compare(createTemporaryObject(label, test, {size: 11, tracking: 0.5}).font.letterSpacing, 0.5);
    }
}
