pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A sheet of paper on the desk with what is seen of a page on it. Ours may be laid over the supplier's, in the same
/// frame: at an opacity, or as the difference of the two.
Item {
    id: root

    required property string key
    required property string label
    /// Where the page lies behind the frame, in the frame's points.
    required property rect page
    /// The page is shown larger than fitted.
    property bool zoomed: false
    /// Our page; empty for none.
    property string over: ""
    property real overOpacity: 0
    property bool difference: false

    /// Only ours is to be seen.
    readonly property bool covered: root.over !== "" && root.overOpacity >= 1 && !root.difference
    /// Only what differs is.
    readonly property bool subtracting: root.over !== "" && root.difference
    /// What is to be seen is there.
    readonly property bool ready: root.subtracting ? subtracted.hasPicture : root.covered ? ours.hasPicture : picture.hasPicture && (root.over === "" || ours.hasPicture)
    readonly property size pixels: picture.pixels

    Accessible.role: Accessible.Graphic
    Accessible.name: root.label

    Shadow {
        anchors.fill: parent
        drop: Theme.dark ? 6 : 4
        blur: Theme.dark ? 20 : 14
        color: Theme.pageShadow
    }
    // Paper for pictures that let it through; it must not look out beside one that ends within a pixel.
    Rectangle {
        anchors.fill: parent
        anchors.margins: (root.covered ? ours : picture).hasPicture ? 1 : 0
        color: (root.covered ? ours : picture).hasPicture ? Theme.paper : Theme.card
    }
    Item {
        anchors.fill: parent
        clip: root.page.x < 0 || root.page.y < 0 || root.page.width > root.width || root.page.height > root.height

        RemoteImage {
            id: picture
            x: root.page.x
            y: root.page.y
            width: root.page.width
            height: root.page.height
            opacity: root.covered ? 0 : 1
            stepped: root.zoomed
            ahead: root.covered || root.subtracting
            key: root.key
        }
        RemoteImage {
            id: ours
            x: root.page.x
            y: root.page.y
            width: root.page.width
            height: root.page.height
            opacity: root.difference ? 0 : root.overOpacity
            stretch: true
            stepped: root.zoomed
            ahead: opacity === 0
            key: root.over
        }
        RemoteImage {
            id: subtracted
            x: root.page.x
            y: root.page.y
            width: root.page.width
            height: root.page.height
            stretch: true
            stepped: root.zoomed
            key: root.subtracting ? root.key : ""
            difference: root.subtracting ? root.over : ""
        }
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: -border.width
        color: "transparent"
        border.width: 1 / Screen.devicePixelRatio
        border.color: Theme.hair
    }
}
