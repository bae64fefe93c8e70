pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// Over the canvas: which of our files to compare with and how, the tool that pins notes, and the pages of the file. On
/// a narrow canvas it takes two rows; more where a screen has no room for the window as it should be.
Item {
    id: root

    required property CanvasState state
    required property Blending blending
    readonly property comparison comparison: root.state.comparison
    readonly property bool overlaid: Store.mode === Store.Overlay
    readonly property int inset: Theme.canvasSide
    readonly property int gap: 12
    readonly property int viewStart: root.inset + (roles.width > 0 ? roles.width + root.gap : 0)
    readonly property int choiceEnd: root.viewStart + view.width
    readonly property bool cramped: root.choiceEnd + root.inset > root.width
    readonly property bool wraps: root.cramped || root.choiceEnd + (blend.visible ? root.gap + blend.width : 0) + root.gap + turning.width + root.inset > root.width
    readonly property int rowHeight: 44
    readonly property int rowStep: 36
    readonly property int blendRow: root.cramped ? 2 : root.wraps ? 1 : 0
    readonly property bool apart: root.wraps && blend.visible && blend.width + root.gap + turning.width + 2 * root.inset > root.width
    readonly property int lastRow: root.blendRow + (root.apart ? 1 : 0)

    implicitHeight: root.rowHeight + root.lastRow * root.rowStep

    Row {
        id: roles
        x: root.inset
        height: root.rowHeight

        SegmentedControl {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.comparison.roles.length > 0
            name: "Compare with"
            help: "Which of our files to compare with"
            titles: root.comparison.roleLabels
            current: root.comparison.roleIndex
            onChosen: index => Store.setAgainst(root.comparison.roles[index])
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.state.ready && root.comparison.count > 0 && root.comparison.roles.length === 0
            text: "No file of ours was found for this page"
            size: 12
            color: Theme.secondary
        }
    }
    SegmentedControl {
        id: view
        x: root.cramped ? root.inset : root.viewStart
        y: (root.rowHeight - height) / 2 + (root.cramped ? root.rowStep : 0)
        visible: root.comparison.count > 0
        name: "View"
        titles: root.state.modeLabels
        current: Store.mode
        onChosen: index => root.state.chooseMode(index)
    }
    Row {
        id: blend
        x: root.wraps ? root.inset : root.choiceEnd + root.gap
        y: root.blendRow * root.rowStep
        height: root.rowHeight
        spacing: root.gap
        visible: root.overlaid && root.comparison.count > 0

        Slider {
            anchors.verticalCenter: parent.verticalCenter
            name: "How much of ours shows through"
            help: "How much of ours shows through"
            value: root.blending.share
            opacity: root.blending.difference ? Theme.disabled : 1
            onMoved: value => root.blending.share = value
        }
        CheckBox {
            anchors.verticalCenter: parent.verticalCenter
            title: "Difference"
            checked: root.blending.difference
            onToggled: checked => root.blending.difference = checked
        }
    }
    Row {
        id: turning
        anchors.right: parent.right
        anchors.rightMargin: 12
        y: root.lastRow * root.rowStep
        height: root.rowHeight
        visible: root.comparison.count > 0

        ToolButton {
            anchors.verticalCenter: parent.verticalCenter
            title: "Note"
            icon: "mappin.and.ellipse"
            help: "Pin a note on the supplier page (⌘N)"
            on: Store.pinning
            onClicked: Actions.pinNote.trigger()
        }
        Item {
            width: 25
            height: parent.height
            Rule {
                anchors.centerIn: parent
                upright: true
                height: 16
            }
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.comparison.pageText
            size: 12.5
            weight: Font.DemiBold
            width: Math.min(implicitWidth, 90)
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: " · " + root.comparison.counterText
            size: 12.5
            color: Theme.secondary
        }
        Item {
            width: 8
            height: 1
        }
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 24
            implicitHeight: 24
            icon: "chevron.up"
            size: 11
            bold: true
            help: "Previous page"
            enabled: Actions.previousPage.enabled
            onClicked: Actions.previousPage.trigger()
        }
        Item {
            width: 2
            height: 1
        }
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 24
            implicitHeight: 24
            icon: "chevron.down"
            size: 11
            bold: true
            help: "Next page"
            enabled: Actions.nextPage.enabled
            onClicked: Actions.nextPage.trigger()
        }
    }
    Rule {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
