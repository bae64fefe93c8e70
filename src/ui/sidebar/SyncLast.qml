pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// How the last sync ended. Its steps and what it brought about unfold under the line.
Column {
    id: root

    required property syncLast row
    property bool open: false
    /// How high what unfolds may become; what does not fit scrolls.
    property real mostUnfolded: 260
    readonly property string key: root.row.key

    // Another sync begins folded.
    onKeyChanged: root.open = false

    Pressable {
        id: line
        width: root.width
        height: 17
        radius: 4
        name: root.row.text
        help: ""
        Accessible.description: root.open ? "unfolded" : "folded"
        onClicked: root.open = !root.open

        Symbol {
            id: symbol
            anchors.verticalCenter: parent.verticalCenter
            name: root.row.symbol
            size: 11
            color: Theme.tint(root.row.tone).plain
        }
        Label {
            anchors.left: symbol.right
            anchors.leftMargin: 6
            anchors.right: chevron.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            text: root.row.text
            size: 11.5
            color: line.hovered ? Theme.text : Theme.secondary
            spoken: false
        }
        Symbol {
            id: chevron
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            size: 9
            bold: true
            color: Theme.tertiary
            rotation: root.open ? 90 : 0
            Behavior on rotation {
                StandardMove {}
            }
        }
    }
    Flickable {
        id: fold
        readonly property real unfolded: Math.min(root.mostUnfolded, details.height)
        width: root.width
        height: root.open ? unfolded : 0
        visible: height > 0
        opacity: root.open ? 1 : 0
        contentHeight: details.height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Behavior on height {
            StandardMove {}
        }
        Behavior on opacity {
            StandardFade {}
        }
        Column {
            id: details
            width: fold.width
            topPadding: 10
            spacing: 12
            Kept {
                wanted: root.open
                Column {
                    width: details.width
                    spacing: details.spacing
                    StepsList {
                        visible: root.row.steps.length > 0
                        width: parent.width
                        steps: root.row.steps
                    }
                    ResultBlock {
                        width: parent.width
                        row: root.row.result
                    }
                }
            }
        }
    }
}
