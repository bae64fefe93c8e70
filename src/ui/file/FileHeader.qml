pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// Names a file, its state and its facts, and leads to what belongs to it.
Item {
    id: root

    required property FileState state
    readonly property fileHeader header: root.state.header
    // In a narrow window the title needs the room more.
    readonly property bool roomy: root.width >= 1000

    implicitHeight: 12 + 34 + 2 + facts.implicitHeight + 9 + links.height + 12

    Label {
        id: title
        x: 22
        y: 12
        width: Math.max(0, Math.min(implicitWidth, actions.x - 22 - chip.width - 10 - 14))
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
    ReviewActions {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: 22
        anchors.verticalCenter: title.verticalCenter
        state: root.state
        roomy: root.roomy
    }
    ReportWords {
        id: report
        anchors.right: actions.right
        anchors.verticalCenter: facts.verticalCenter
        visible: !root.roomy
        report: root.state.report
    }
    Label {
        id: facts
        x: 22
        anchors.top: title.bottom
        anchors.topMargin: 2
        width: Math.max(0, root.width - 44 - (report.visible && report.width > 0 ? report.width + 14 : 0))
        text: root.header.facts
        size: 13
        color: Theme.secondary
    }
    Flow {
        id: links
        x: 22
        anchors.top: facts.bottom
        anchors.topMargin: 9
        width: root.width - 44
        spacing: 7

        Repeater {
            model: root.header.links

            LinkPill {
                required property fileLink modelData
                title: modelData.title
                icon: modelData.symbol
                url: modelData.url
                widest: links.width
                onOpened: link => root.state.follow(link)
            }
        }
    }
}
