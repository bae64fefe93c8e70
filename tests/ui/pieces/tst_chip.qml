import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Chip"
    when: windowShown
    visible: true

    Component {
        id: chip
        Chip {}
    }
    Component {
        id: statusChip
        StatusChip {}
    }

    function test_aStatusChipSaysWhereAFileStands_data() {
        return [
            {tag: "new", title: "New", tone: Tone.Accent},
            {tag: "in_review", title: "In review", tone: Tone.LookAt},
            {tag: "reviewed", title: "Reviewed", tone: Tone.Reviewed},
            {tag: "something else", title: "Reviewed", tone: Tone.Reviewed}
        ];
    }

    function test_aStatusChipSaysWhereAFileStands(row) {
        const piece = createTemporaryObject(statusChip, test, {status: row.tag});
        compare(piece.text, row.title);
        compare(piece.Accessible.name, row.title);
        compare(piece.color, Theme.tint(row.tone).plain);
        compare(piece.ink, Theme.tint(row.tone).ink);
        verify(piece.dot);
    }

    function test_theTextIsPadded() {
        const piece = createTemporaryObject(chip, test, {text: "New"});
        const text = findChild(piece, "text");
        compare(piece.implicitWidth, Math.ceil(text.implicitWidth) + 16);
        compare(piece.implicitHeight, Math.ceil(text.implicitHeight) + 6);
        const dotted = createTemporaryObject(chip, test, {text: "New", dot: true});
        verify(dotted.implicitWidth > piece.implicitWidth);
    }

    function test_withoutASoftColourTheGroundIsAWashOfItsOwn() {
        const ground = findChild(createTemporaryObject(chip, test, {text: "New", color: "#ff0000"}), "ground");
        compare(ground.color, "#ff0000");
        compare(ground.opacity, 0.12);
        const soft = findChild(createTemporaryObject(chip, test, {text: "New", color: "#ff0000", soft: "#00ff00"}), "ground");
        compare(soft.color, "#00ff00");
        compare(soft.opacity, 1);
    }
}
