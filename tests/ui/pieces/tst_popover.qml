import QtQuick
import QtTest
import Vexal.Pieces

TestCase {
    id: test
    name: "Popover"
    when: windowShown
    visible: true
    width: 400
    height: 300

    Component {
        id: withPopover
        Item {
            property alias popover: popover
            property alias button: button
            property alias inside: inside
            property alias other: other
            width: 400
            height: 300
            Pill {
                id: button
                x: 20
                y: 260
                title: "Activity"
                onClicked: popover.open = true
            }
            Pill {
                id: other
                x: 300
                y: 260
                title: "Refresh"
            }
            Popover {
                id: popover
                x: 20
                y: 100
                width: 200
                height: 140
                opener: button
                arrowAt: 30
                onDismissed: popover.open = false
                Pill {
                    id: inside
                    x: 20
                    y: 20
                    title: "Stop"
                    focus: true
                }
            }
        }
    }
    SignalSpy {
        id: dismissed
        signalName: "dismissed"
    }
    SignalSpy {
        id: clicked
        signalName: "clicked"
    }

    function init() {
        Appearance.resting = true;
    }
    function cleanup() {
        Appearance.resting = false;
    }
    function make(): var {
        const place = createTemporaryObject(withPopover, test);
        dismissed.target = place.popover;
        dismissed.clear();
        clicked.target = null;
        clicked.clear();
        return place;
    }
    function opened(): var {
        const place = make();
        mouseClick(place.button);
        verify(place.popover.visible);
        return place;
    }

    function test_nothingOfItIsThereUntilItOpens() {
        const place = make();
        verify(!place.popover.visible);
        verify(!place.popover.enabled);
        mouseClick(place.button);
        verify(place.popover.visible);
        compare(place.popover.grown, 1);
        compare(place.popover.Accessible.role, Accessible.Pane);
    }

    function test_openItHasTheKeyboardAndGivesItBack() {
        const place = make();
        place.button.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Return);
        verify(place.inside.activeFocus);
        keyClick(Qt.Key_Escape);
        compare(dismissed.count, 1);
        verify(!place.popover.visible);
        verify(place.button.activeFocus);
    }

    function test_aPressInItStaysInIt() {
        const place = opened();
        clicked.target = place.inside;
        mouseClick(place.inside);
        compare(clicked.count, 1);
        mouseClick(place.popover, 150, 120);
        compare(dismissed.count, 0);
    }

    function test_aPressOnTheOpenerClosesIt() {
        const place = opened();
        clicked.target = place.button;
        clicked.clear();
        mouseClick(place.button);
        compare(dismissed.count, 1);
        compare(clicked.count, 0);
        verify(!place.popover.visible);
    }

    function test_aPressElsewhereClosesItAndGoesWhereItWasAimed() {
        const place = opened();
        clicked.target = place.other;
        mouseClick(place.other);
        compare(dismissed.count, 1);
        compare(clicked.count, 1);
    }
}
