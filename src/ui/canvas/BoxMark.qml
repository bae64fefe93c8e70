pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// One finding's places on a page. As large as the page; only the boxes themselves take the pointer.
Item {
    id: root

    required property boxMark mark
    signal toggled

    Repeater {
        model: root.mark.boxes

        Item {
            id: box
            required property rect modelData
            readonly property rect place: CanvasGeometry.boxOnPane(box.modelData, root.width, root.height)
            readonly property color tone: root.mark.tone === Tone.Neutral ? Theme.expected : Theme.tint(root.mark.tone).plain

            x: box.place.x
            y: box.place.y
            width: box.place.width
            height: box.place.height

            Accessible.role: Accessible.Button
            Accessible.name: root.mark.title
            Accessible.selectable: true
            Accessible.selected: root.mark.selected
            Accessible.onPressAction: root.toggled()

            Rectangle {
                anchors.fill: parent
                radius: 3
                color: box.tone
                opacity: 0.1
            }
            StrokedBox {
                anchors.fill: parent
                line: root.mark.selected ? 5 : 4
                color: "white"
                opacity: 0.9
            }
            StrokedBox {
                anchors.fill: parent
                line: root.mark.selected || hover.hovered ? 2.4 : 1.6
                color: box.tone
            }
            HoverHandler {
                id: hover
            }
            TapHandler {
                gesturePolicy: TapHandler.ReleaseWithinBounds
                onTapped: root.toggled()
            }
            Hint {
                text: root.mark.title
            }
        }
    }
}
