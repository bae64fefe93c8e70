import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Avatar"
    when: windowShown
    visible: true

    Component {
        id: avatar
        Avatar {}
    }

    function test_initialsStandForSomebodyWithoutAPhoto() {
        const piece = createTemporaryObject(avatar, test, {email: "ada@x.example", name: "Ada Lindqvist", size: 50});
        const text = findChild(piece, "text");
        compare(text.text, "AL");
        compare(text.font.pixelSize, 21);
        compare(piece.implicitWidth, 50);
        compare(piece.Accessible.name, "Ada Lindqvist");
    }

    function test_aQuestionMarkStandsForSomebodyUnknown_data() {
        return [
            {tag: "nobody", email: "", name: ""},
            {tag: "without a name", email: "ada@x.example", name: " "},
            {tag: "without an address", email: "", name: "Ada"}
        ];
    }

    function test_aQuestionMarkStandsForSomebodyUnknown(row) {
        const piece = createTemporaryObject(avatar, test, {email: row.email, name: row.name});
        compare(findChild(piece, "text").text, "?");
        compare(String(findChild(piece, "text").color), String(Theme.tertiary));
    }

    function test_theRingAndTheDotShowWhoIsHere() {
        const piece = createTemporaryObject(avatar, test, {email: "a@x.example", name: "A"});
        verify(!findChild(piece, "ring").visible);
        verify(!findChild(piece, "dot").visible);
        piece.ring = true;
        piece.dot = true;
        compare(findChild(piece, "ring").width, 28);
        verify(findChild(piece, "dot").visible);
        compare(piece.implicitWidth, 22);
    }
}
