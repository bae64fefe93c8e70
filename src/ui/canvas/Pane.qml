pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// One page under its label, as large as its box allows; or, without a page of ours, what is said in its place. What a
/// pane is given as children lies on the page and is as large as it.
Item {
    id: root

    required property size box
    required property paneView view
    required property color dot
    /// Said in place of the page when it is not empty.
    property string missing: ""
    default property alias marks: page.data
    readonly property size page: CanvasGeometry.fittedPage(root.box, root.view.aspect)

    width: root.box.width
    height: root.box.height + 22

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
            width: Math.min(implicitWidth, root.width - 13)
            text: root.view.label
            size: 11.5
            weight: Font.Medium
            color: Theme.secondary
        }
    }
    PageFrame {
        id: page
        y: 22
        width: root.page.width
        height: root.page.height
        visible: root.missing === ""
        key: root.view.key
        label: root.view.label
    }
    NoRef {
        y: 22
        width: root.page.width
        height: root.page.height
        visible: root.missing !== ""
        heading: root.missing
    }
}
