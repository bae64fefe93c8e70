pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Canvas

/// Zooms and moves the page of the pane that it lies over: the wheel, two fingers, the middle button, or the left one
/// while it is `holding`. Everything else goes through to what lies under it.
Item {
    id: root

    required property PageZoom zoom
    /// The page of the pane as it is fitted.
    required property size page
    property bool holding: false

    signal used

    /// Points a notch of the wheel moves the page, and how much larger it makes it.
    readonly property int notchMove: 64
    readonly property real notchZoom: 1.2

    function distance(wheel: WheelEvent): point {
        if (wheel.pixelDelta.x !== 0 || wheel.pixelDelta.y !== 0)
            return wheel.pixelDelta;
        const x = wheel.angleDelta.x * root.notchMove / 120;
        const y = wheel.angleDelta.y * root.notchMove / 120;
        return wheel.modifiers & Qt.ShiftModifier && x === 0 ? Qt.point(y, 0) : Qt.point(x, y);
    }

    // A pointer handler makes its item take every button, so the mouse has an item of its own.
    MouseArea {
        id: area
        property point last

        anchors.fill: parent
        acceptedButtons: root.holding ? Qt.LeftButton | Qt.MiddleButton : Qt.MiddleButton
        preventStealing: true
        onWheel: wheel => {
            if (wheel.modifiers & Qt.ControlModifier) {
                root.used();
                root.zoom.zoomBy(Math.pow(root.notchZoom, wheel.angleDelta.y / 120), Qt.point(wheel.x, wheel.y), root.page);
            } else if (root.zoom.zoomed) {
                root.used();
                const by = root.distance(wheel);
                root.zoom.moveBy(by.x, by.y, root.page);
            } else {
                wheel.accepted = false;
            }
        }
        onPressed: mouse => {
            mouse.accepted = root.zoom.zoomed;
            area.last = Qt.point(mouse.x, mouse.y);
            root.used();
        }
        onPositionChanged: mouse => {
            root.zoom.moveBy(mouse.x - area.last.x, mouse.y - area.last.y, root.page);
            area.last = Qt.point(mouse.x, mouse.y);
        }
    }
    HoverHandler {
        enabled: root.zoom.zoomed && (root.holding || area.pressed)
        cursorShape: area.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
    }
    PinchHandler {
        id: pinch
        property real scaleBefore: 1
        property vector2d wayBefore: Qt.vector2d(0, 0)

        target: null
        onActiveChanged: {
            pinch.scaleBefore = 1;
            pinch.wayBefore = Qt.vector2d(0, 0);
        }
        onUpdated: {
            const way = pinch.translation.minus(pinch.wayBefore);
            const centre = pinch.centroid.position;
            if (pinch.activeScale > 0 && pinch.activeScale !== pinch.scaleBefore) {
                root.used();
                root.zoom.zoomBy(pinch.activeScale / pinch.scaleBefore, Qt.point(centre.x - way.x, centre.y - way.y), root.page);
            }
            if (root.zoom.zoomed)
                root.zoom.moveBy(way.x, way.y, root.page);
            pinch.scaleBefore = pinch.activeScale;
            pinch.wayBefore = pinch.translation;
        }
    }
}
