pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// A close-up of one region of a page's picture, with the boxes on it, under its caption.
Item {
    id: root

    required property string key
    /// Width over height of the page.
    required property real aspect
    /// What the region is around, in fractions of the page; the whole page when it is not four numbers.
    required property list<real> box
    required property list<rect> boxes
    required property color color
    required property string label
    property color dot: Theme.tertiary
    /// What the crop lies on.
    property color ground: Theme.card
    readonly property int corner: 6
    /// Said in place of the picture when it is not empty.
    property string missing: ""

    readonly property rect page: CanvasGeometry.pageBehindCrop(root.box, root.aspect, frame.width, frame.height)

    Accessible.role: Accessible.Graphic
    Accessible.name: root.label
    Accessible.description: root.missing

    Row {
        height: 14
        spacing: 6
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 7
            height: 7
            radius: 3.5
            color: root.dot
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width - 13)
            text: root.label
            size: 11.5
            weight: Font.Medium
            color: Theme.secondary
            spoken: false
        }
    }
    Item {
        id: frame
        y: 20
        width: root.width
        height: root.height - 20
        clip: true

        Rectangle {
            anchors.fill: parent
            color: Theme.window
        }
        RemoteImage {
            x: root.page.x
            y: root.page.y
            width: root.page.width
            height: root.page.height
            visible: root.missing === ""
            stretch: true
            stepped: true
            key: root.key
        }
        component Outline: StrokedBox {
            required property rect modelData
            readonly property rect place: CanvasGeometry.boxOnCrop(modelData, root.page)
            x: place.x
            y: place.y
            width: place.width
            height: place.height
        }

        // Under the lines of all boxes, so that none is cut where two of them meet.
        Repeater {
            model: root.missing === "" ? root.boxes : []
            Outline {
                line: 4
                color: Theme.paper
                opacity: 0.9
            }
        }
        Repeater {
            model: root.missing === "" ? root.boxes : []
            Outline {
                objectName: "cropBox"
                line: 1.6
                color: root.color
            }
        }
        Label {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 24)
            visible: root.missing !== ""
            text: root.missing
            size: 12
            color: Theme.secondary
        }
    }
    // The ground around the frame covers its corners.
    Rectangle {
        anchors.fill: frame
        anchors.margins: -root.corner
        radius: 2 * root.corner
        color: "transparent"
        border.width: root.corner
        border.color: root.ground
        antialiasing: true
    }
    Outlined {
        anchors.fill: frame
        radius: root.corner
        color: "transparent"
    }
}
