import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Overlays"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: withMenu
        Item {
            id: place
            property alias menu: menu
            property alias button: button
            width: 400
            height: 300
            IconButton {
                id: button
                x: 300
                icon: "ellipsis"
                help: "Edit or delete"
                onClicked: menu.open = true
            }
            Menu {
                id: menu
                objectName: "menu"
                opener: button
                titles: ["Edit", "Delete"]
                destructive: 1
                onDismissed: menu.open = false
            }
        }
    }
    Component {
        id: withQuestion
        Item {
            id: asking
            property alias confirmation: confirmation
            property alias button: opener
            width: 400
            height: 300
            Pill {
                id: opener
                title: "Delete"
                onClicked: confirmation.open = true
            }
            Confirmation {
                id: confirmation
                opener: opener
                question: "Delete this note?"
                action: "Delete"
                onDismissed: confirmation.open = false
            }
        }
    }
    SignalSpy {
        id: chosen
        signalName: "chosen"
    }
    SignalSpy {
        id: confirmed
        signalName: "confirmed"
    }

    function init() {
        Appearance.resting = true;
    }
    function cleanup() {
        Appearance.resting = false;
    }
    function watch(spy, item) {
        spy.target = item;
        spy.clear();
    }

    function test_aMenuStandsUnderItsButtonInsideTheWindow() {
        const place = createTemporaryObject(withMenu, test);
        mouseClick(place.button);
        verify(place.menu.visible);
        const panel = findChild(place.menu, "panel");
        const at = panel.mapToItem(place, 0, 0);
        compare(Math.round(at.x + panel.width), 326);
        compare(Math.round(at.y), 28);
        place.menu.open = false;
        place.button.y = 270;
        place.button.x = 0;
        place.menu.open = true;
        const there = panel.mapToItem(place, 0, 0);
        verify(there.y + panel.height <= 270);
        verify(there.x >= 0);
    }

    function test_aMenuIsGoneThroughByKeyboard() {
        const place = createTemporaryObject(withMenu, test);
        watch(chosen, place.menu);
        place.button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        verify(place.menu.activeFocus);
        compare(place.menu.current, 0);
        keyClick(Qt.Key_Down);
        compare(place.menu.current, 1);
        keyClick(Qt.Key_Down);
        compare(place.menu.current, 0);
        keyClick(Qt.Key_Up);
        compare(place.menu.current, 1);
        keyClick(Qt.Key_Return);
        compare(chosen.count, 1);
        compare(chosen.signalArguments[0][0], 1);
        verify(!place.menu.visible);
        verify(place.button.activeFocus);
    }

    function test_escapeAndAPressBesideItCloseTheMenu() {
        const place = createTemporaryObject(withMenu, test);
        watch(chosen, place.menu);
        mouseClick(place.button);
        keyClick(Qt.Key_Escape);
        verify(!place.menu.visible);
        mouseClick(place.button);
        mouseClick(place, 20, 200);
        verify(!place.menu.visible);
        compare(chosen.count, 0);
    }

    function test_theChoicesAreSpokenAndPressedByVoice() {
        const place = createTemporaryObject(withMenu, test);
        watch(chosen, place.menu);
        mouseClick(place.button);
        compare(place.menu.Accessible.role, Accessible.PopupMenu);
        const choice = findChild(place.menu, "choice0");
        compare(choice.Accessible.role, Accessible.MenuItem);
        compare(choice.Accessible.name, "Edit");
        verify(choice.Accessible.focused);
        choice.Accessible.pressAction();
        compare(chosen.signalArguments[0][0], 0);
    }

    function test_theQuestionBeginsOnTheWayOut() {
        const place = createTemporaryObject(withQuestion, test);
        watch(confirmed, place.confirmation);
        mouseClick(place.button);
        verify(place.confirmation.visible);
        compare(place.confirmation.Accessible.role, Accessible.Dialog);
        compare(place.confirmation.Accessible.name, "Delete this note?");
        verify(findChild(place.confirmation, "cancel").activeFocus);
        keyClick(Qt.Key_Return);
        verify(!place.confirmation.visible);
        compare(confirmed.count, 0);
    }

    function test_theKeyboardStaysInTheQuestion() {
        const place = createTemporaryObject(withQuestion, test);
        watch(confirmed, place.confirmation);
        place.button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Space);
        const cancel = findChild(place.confirmation, "cancel");
        const act = findChild(place.confirmation, "act");
        keyClick(Qt.Key_Tab);
        verify(act.activeFocus);
        keyClick(Qt.Key_Tab);
        verify(cancel.activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(act.activeFocus);
        keyClick(Qt.Key_Space);
        compare(confirmed.count, 1);
        verify(!place.confirmation.visible);
        verify(place.button.activeFocus);
    }
}
