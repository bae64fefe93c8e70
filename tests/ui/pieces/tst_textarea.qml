import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "TextArea"
    when: windowShown
    visible: true
    width: 400
    height: 400

    Component {
        id: area
        TextArea {
            width: 240
            placeholder: "Write a note for the report"
            name: "Note on page 7"
            least: 54
        }
    }
    Component {
        id: between
        Column {
            property alias first: first
            property alias field: field
            property alias last: last
            Pill {
                id: first
                title: "Before"
            }
            TextArea {
                id: field
            }
            Pill {
                id: last
                title: "After"
            }
        }
    }
    SignalSpy {
        id: submitted
        signalName: "submitted"
    }
    SignalSpy {
        id: escaped
        signalName: "escaped"
    }
    Shortcut {
        id: closes
        property int times: 0
        sequence: "Escape"
        onActivated: closes.times += 1
    }

    function make(properties) {
        const piece = createTemporaryObject(area, test, properties || {});
        submitted.target = piece;
        submitted.clear();
        piece.forceActiveFocus();
        return piece;
    }
    function edit(piece) {
        return findChild(piece, "edit");
    }

    function test_itIsAtLeastAsHighAsItIsTold() {
        compare(make().height, 54);
        const low = make({least: 0, text: "one"});
        verify(low.height > 30 && low.height < 40);
    }

    function test_itGrowsToEightLinesAndThenScrolls() {
        const piece = make({least: 0, text: "1"});
        const one = piece.height;
        piece.text = "1\n2\n3\n4\n5\n6\n7\n8";
        const eight = piece.height;
        fuzzyCompare(eight - 18, 8 * (one - 18), 2);
        piece.text = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10";
        compare(piece.height, eight);
        edit(piece).cursorPosition = piece.text.length;
        const view = findChild(piece, "view");
        verify(view.contentY > 0);
        edit(piece).cursorPosition = 0;
        compare(view.contentY, 0);
    }

    function test_longWordsAreWrapped() {
        const piece = make({text: "x".repeat(500)});
        verify(edit(piece).contentWidth <= edit(piece).width);
        verify(piece.height > 100);
    }

    function test_markupIsText() {
        const piece = make({text: "<b>bold</b>"});
        compare(edit(piece).textFormat, TextEdit.PlainText);
        compare(piece.text, "<b>bold</b>");
    }

    function test_thePlaceholderShowsWhileNothingIsWritten() {
        const piece = make();
        const words = findChild(piece, "placeholder");
        verify(words.visible);
        compare(words.text, "Write a note for the report");
        keyClick("a");
        verify(!words.visible);
    }

    function test_theOutlineShowsTheFocus() {
        const piece = make();
        const strong = findChild(piece, "focusOutline");
        verify(strong.visible);
        compare(strong.border.width, 1.5);
        compare(strong.border.color, Theme.accent.plain);
        compare(strong.opacity, 0.6);
        verify(!findChild(piece, "outline").visible);
        piece.focus = false;
        verify(!strong.visible);
        verify(findChild(piece, "outline").visible);
    }

    function test_controlReturnHandsIn() {
        const piece = make();
        keyClick("a");
        keyClick(Qt.Key_Return);
        compare(submitted.count, 0);
        compare(piece.text, "a\n");
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        compare(submitted.count, 1);
        keyClick(Qt.Key_Enter, Qt.ControlModifier | Qt.KeypadModifier);
        compare(submitted.count, 2);
        compare(piece.text, "a\n");
    }

    function test_escapeIsTheFieldsOwnOnlyWhereItKeepsIt() {
        const piece = make({text: "one"});
        escaped.target = piece;
        escaped.clear();
        closes.times = 0;
        keyClick(Qt.Key_Escape);
        compare(closes.times, 1);
        compare(escaped.count, 0);
        piece.keepsEscape = true;
        keyClick(Qt.Key_Escape);
        compare(closes.times, 1);
        compare(escaped.count, 1);
        compare(piece.text, "one");
    }

    function test_tabGoesOnAndBack() {
        const piece = createTemporaryObject(between, test);
        piece.field.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        verify(piece.last.activeFocus);
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        verify(piece.field.activeFocus);
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        verify(piece.first.activeFocus);
        compare(piece.field.text, "");
    }

    function test_itIsSpoken() {
        const piece = make();
        compare(edit(piece).Accessible.role, Accessible.EditableText);
        compare(edit(piece).Accessible.name, "Note on page 7");
        compare(edit(piece).Accessible.description, "Write a note for the report");
        verify(edit(piece).Accessible.multiLine);
        verify(!edit(piece).Accessible.readOnly);
        piece.readOnly = true;
        verify(edit(piece).Accessible.readOnly);
        keyClick("a");
        compare(piece.text, "");
    }
}
