pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// One finding's places on a page, all of them one mark. As large as the page; only the boxes take the pointer, and the
/// keyboard stops at the first.
Item {
    id: root

    required property boxMark mark
    readonly property color tone: root.mark.tone === Tone.Neutral ? Theme.expected : Theme.tint(root.mark.tone).plain
    /// It can be seen, and feels the pointer.
    property bool live: true
    property int hovers: 0

    signal toggled
    /// The keyboard came to the mark.
    signal reached

    z: root.mark.layer

    // A key that is held down asks once.
    function enter(event: KeyEvent) {
        if (!event.isAutoRepeat)
            root.toggled();
    }
    // The lines lie on whole pixels, so that all four sides look the same.
    function onPixelGrid(points: real): real {
        return Math.round(points * Screen.devicePixelRatio) / Screen.devicePixelRatio;
    }
    component Outline: StrokedBox {
        required property rect place
        /// Where the item in which it stands lies on the page.
        property point origin
        x: root.onPixelGrid(place.x) - origin.x
        y: root.onPixelGrid(place.y) - origin.y
        width: root.onPixelGrid(place.width)
        height: root.onPixelGrid(place.height)
    }

    // The grounds, then what sets the lines off from any paper, then the lines: none is cut where two boxes meet.
    Repeater {
        model: root.mark.boxes
        Rectangle {
            required property rect modelData
            readonly property rect place: CanvasGeometry.boxOnPane(modelData, root.width, root.height)
            x: place.x
            y: place.y
            width: place.width
            height: place.height
            radius: 3
            color: Appearance.faded(root.tone, 0.1)
        }
    }
    Repeater {
        model: root.mark.boxes
        Outline {
            required property rect modelData
            objectName: "halo"
            place: CanvasGeometry.boxOnPane(modelData, root.width, root.height)
            line: root.mark.selected ? 5 : 4
            color: Appearance.faded(Theme.paper, 0.9)
        }
    }
    Repeater {
        model: root.mark.boxes

        Item {
            id: box
            required property rect modelData
            required property int index
            readonly property rect place: CanvasGeometry.boxOnPane(box.modelData, root.width, root.height)

            objectName: "box"
            x: box.place.x
            y: box.place.y
            width: box.place.width
            height: box.place.height
            activeFocusOnTab: box.index === 0

            Accessible.role: Accessible.Button
            Accessible.name: root.mark.title
            Accessible.description: "A finding on the page"
            Accessible.focusable: box.index === 0
            Accessible.selectable: true
            Accessible.selected: root.mark.selected
            Accessible.onPressAction: root.toggled()
            Keys.onSpacePressed: event => root.enter(event)
            Keys.onReturnPressed: event => root.enter(event)
            Keys.onEnterPressed: event => root.enter(event)
            onActiveFocusChanged: {
                if (box.activeFocus)
                    root.reached();
            }
            // A box that goes while it is pointed at hears of no leave.
            Component.onDestruction: {
                if (hover.hovered)
                    root.hovers -= 1;
            }

            Outline {
                objectName: "line"
                place: box.place
                origin: Qt.point(box.x, box.y)
                line: root.mark.selected || root.hovers > 0 ? 2.4 : 1.6
                color: root.tone
            }
            HoverHandler {
                id: hover
                enabled: root.live
                onHoveredChanged: root.hovers += hover.hovered ? 1 : -1
            }
            TapHandler {
                enabled: root.live
                gesturePolicy: TapHandler.ReleaseWithinBounds
                onTapped: root.toggled()
            }
            Hint {
                enabled: root.live
                text: root.mark.title
            }
            FocusRing {
                around: 3
            }
        }
    }
}
