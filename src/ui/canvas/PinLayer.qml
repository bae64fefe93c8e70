pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Lies over the supplier's page while a note is being pinned, and over every mark on it: a click anywhere is a place.
/// With the keyboard a cross is moved about and pressed.
MouseArea {
    id: root

    /// What of the page can be seen, in its own points.
    required property rect seen
    /// A place was chosen, in fractions of the page.
    signal placed(place: point)

    property point aim: Qt.point(root.seen.x + root.seen.width / 2, root.seen.y + root.seen.height / 2)
    property bool aiming: false

    function put(x: real, y: real) {
        root.placed(Qt.point(x / root.width, y / root.height));
    }
    function nudge(event: var, x: real, y: real) {
        const step = event.modifiers & Qt.ShiftModifier ? 1 : 12;
        const seen = root.seen;
        root.aim = Qt.point(Math.max(seen.x, Math.min(root.aim.x + x * step, seen.x + seen.width)), Math.max(seen.y, Math.min(root.aim.y + y * step, seen.y + seen.height)));
        root.aiming = true;
    }

    cursorShape: Qt.CrossCursor
    activeFocusOnTab: true
    onClicked: mouse => root.put(mouse.x, mouse.y)
    Component.onCompleted: root.forceActiveFocus()

    Accessible.role: Accessible.Button
    Accessible.name: "Click the page"
    Accessible.description: "The arrows move the cross, Return pins the note there"
    Accessible.focusable: true
    Accessible.onPressAction: root.put(root.aim.x, root.aim.y)
    Keys.onLeftPressed: event => root.nudge(event, -1, 0)
    Keys.onRightPressed: event => root.nudge(event, 1, 0)
    Keys.onUpPressed: event => root.nudge(event, 0, -1)
    Keys.onDownPressed: event => root.nudge(event, 0, 1)
    Keys.onReturnPressed: root.put(root.aim.x, root.aim.y)
    Keys.onEnterPressed: root.put(root.aim.x, root.aim.y)
    Keys.onSpacePressed: root.put(root.aim.x, root.aim.y)

    Item {
        visible: root.aiming && root.activeFocus
        x: root.aim.x
        y: root.aim.y

        Repeater {
            model: [[1, 25], [25, 1]]
            Rectangle {
                required property var modelData
                x: -width / 2
                y: -height / 2
                width: modelData[0] + 2
                height: modelData[1] + 2
                color: Theme.accent.solid
                border.width: 1
                border.color: Theme.onSolid
            }
        }
    }
}
