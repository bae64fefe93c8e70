pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// Another page on which something is open. Asks to be turned to.
Pressable {
    id: root

    required property otherPage row

    implicitHeight: 28
    radius: 6
    name: root.row.title + ", " + root.row.open

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: -6
        anchors.rightMargin: -6
        radius: root.radius
        visible: root.hovered
        color: root.pressed ? Theme.pressed : Theme.hover
    }
    Label {
        id: title
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width - open.implicitWidth - 30)
        text: root.row.title
        size: 12.5
        weight: Font.DemiBold
        spoken: false
    }
    Label {
        id: open
        anchors.left: title.right
        anchors.leftMargin: 8
        anchors.baseline: title.baseline
        text: root.row.open
        size: 12
        color: Theme.secondary
        spoken: false
    }
    Symbol {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        size: 10
        bold: true
        color: Theme.tertiary
    }
}
