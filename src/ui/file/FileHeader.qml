pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// Names a file, its state and its facts.
Item {
    id: root

    required property fileHeader header

    implicitHeight: 12 + 34 + 2 + facts.implicitHeight + 14

    Label {
        id: title
        x: 22
        y: 12
        width: Math.min(implicitWidth, root.width - 44 - chip.width - 10)
        height: 34
        verticalAlignment: Text.AlignVCenter
        text: root.header.title
        size: 27
        weight: Font.DemiBold
        tracking: -0.3
        Accessible.role: Accessible.Heading
    }
    StatusChip {
        id: chip
        anchors.left: title.right
        anchors.leftMargin: 10
        anchors.verticalCenter: title.verticalCenter
        status: root.header.status
    }
    Label {
        id: facts
        x: 22
        anchors.top: title.bottom
        anchors.topMargin: 2
        width: root.width - 44
        text: root.header.facts
        size: 13
        color: Theme.secondary
    }
}
