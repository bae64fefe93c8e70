pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// One page under its label, as large as its box allows or as closely as it is looked at; or, without a page of ours,
/// what is said in its place. What a pane is given as children lies on the page and is as large as it.
Item {
    id: root

    required property size box
    required property paneView view
    required property color dot
    required property PageZoom zoom
    property string label: root.view.label
    /// Ours, laid over the supplier's.
    property string over: ""
    property real overOpacity: 0
    property bool difference: false
    /// How much of the label's row is kept for something else, at its end.
    property real labelEnd: 0
    /// Said in place of the page when it is not empty.
    property string missing: ""
    default property alias marks: marks.data

    readonly property size page: CanvasGeometry.fittedPage(root.box, root.view.aspect)
    /// Where the page lies in the box. The factor is read because it tells of every change of the zoom.
    readonly property rect place: root.zoom.factor >= 1 ? root.zoom.place(root.page) : Qt.rect(0, 0, 0, 0)
    readonly property rect sheet: Qt.rect(Math.max(0, at.x), Math.max(0, at.y), Math.min(root.box.width, at.x + at.width) - Math.max(0, at.x), Math.min(root.box.height, at.y + at.height) - Math.max(0, at.y))
    /// What of the page can be seen, in the page's points.
    readonly property rect seen: Qt.rect(root.sheet.x - at.x, root.sheet.y - at.y, root.sheet.width, root.sheet.height)
    readonly property bool cut: root.sheet.width < at.width || root.sheet.height < at.height
    readonly property alias ready: frame.ready
    readonly property alias pixels: frame.pixels

    /// The page was pressed where there is no mark.
    signal touched

    function onPixelGrid(points: real): real {
        return Math.round(points * Screen.devicePixelRatio) / Screen.devicePixelRatio;
    }

    width: root.box.width
    height: root.box.height + Theme.labelRow

    QtObject {
        id: at
        property real x: root.onPixelGrid(root.place.x)
        property real y: root.onPixelGrid(root.place.y)
        readonly property real width: root.place.width
        readonly property real height: root.place.height

        Behavior on x {
            enabled: root.zoom.gliding
            StandardMove {}
        }
        Behavior on y {
            enabled: root.zoom.gliding
            StandardMove {}
        }
    }
    Row {
        id: label
        height: 16
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
            width: Math.min(implicitWidth, root.width - 13 - root.labelEnd)
            text: root.label
            size: 11.5
            weight: Font.Medium
            // Its end tells the page.
            elide: Text.ElideMiddle
            color: Theme.secondary
        }
    }
    PageFrame {
        id: frame
        x: root.sheet.x
        y: Theme.labelRow + root.sheet.y
        width: root.sheet.width
        height: root.sheet.height
        visible: root.missing === ""
        page: Qt.rect(at.x - root.sheet.x, at.y - root.sheet.y, at.width, at.height)
        zoomed: root.zoom.zoomed
        key: root.view.key
        label: root.label
        over: root.over
        overOpacity: root.overOpacity
        difference: root.difference
    }
    When {
        active: root.missing !== ""
        NoRef {
            y: Theme.labelRow
            width: root.page.width
            height: root.page.height
            heading: root.missing
        }
    }
    Item {
        y: Theme.labelRow
        width: root.box.width
        height: root.box.height
        clip: root.cut
        visible: root.missing === ""

        MouseArea {
            x: at.x
            y: at.y
            width: at.width
            height: at.height
            onPressed: root.touched()
            onDoubleClicked: mouse => root.zoom.toggle(Qt.point(at.x + mouse.x, at.y + mouse.y), root.page)
        }
        Item {
            id: marks
            x: at.x
            y: at.y
            width: at.width
            height: at.height
        }
    }
}
