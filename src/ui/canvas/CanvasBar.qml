pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// Over the canvas: which of our files to compare with, and the pages of the file.
Item {
    id: root

    required property CanvasState state
    readonly property comparison comparison: root.state.comparison

    implicitHeight: 44

    SegmentedControl {
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        visible: root.comparison.roles.length > 0
        name: "Compare with"
        help: "Which of our files to compare with"
        titles: root.comparison.roleLabels
        current: root.comparison.roleIndex
        onChosen: index => Store.setAgainst(root.comparison.roles[index])
    }
    Label {
        x: 18
        anchors.verticalCenter: parent.verticalCenter
        visible: root.state.ready && root.comparison.count > 0 && root.comparison.roles.length === 0
        text: "No file of ours was found for this page"
        size: 12
        color: Theme.secondary
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: root.comparison.count > 0
        spacing: 2

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.comparison.pageText
            size: 12.5
            weight: Font.DemiBold
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
            icon: "chevron.up"
            size: 11
            bold: true
            help: "Previous page"
            enabled: root.comparison.index > 0
            onClicked: root.state.turn(-1)
        }
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            icon: "chevron.down"
            size: 11
            bold: true
            help: "Next page"
            enabled: root.comparison.index < root.comparison.count - 1
            onClicked: root.state.turn(1)
        }
    }
    Rule {
        anchors.bottom: parent.bottom
        width: parent.width
    }
    Shortcut {
        sequence: "Ctrl+Up"
        onActivated: root.state.turn(-1)
    }
    Shortcut {
        sequence: "Ctrl+Down"
        onActivated: root.state.turn(1)
    }
}
