pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// Several selected files: how many, their faces, and one report on all of them.
Item {
    id: root

    required property FileState state

    Column {
        id: column
        anchors.centerIn: parent
        width: Math.min(parent.width - 40, 460)

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            bottomPadding: 18
            text: root.state.filesHeading
            size: 26
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Flickable {
            anchors.horizontalCenter: parent.horizontalCenter
            width: thumbs.width
            // More faces than there is room for are scrolled: what can be done with them stays in sight.
            height: Math.min(thumbs.height, Math.max(90, root.height - 220))
            contentHeight: thumbs.height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive

            Flow {
                id: thumbs
                readonly property int perRow: Math.max(1, Math.min(root.state.thumbs.length, Math.floor((column.width + 5) / 75)))
                width: perRow * 75 - 5
                spacing: 5

                Repeater {
                    model: root.state.thumbs

                    Thumb {
                        required property string modelData
                        width: 70
                        height: 90
                        radius: 3
                        key: modelData
                    }
                }
            }
        }
        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 300
            height: 22 + 34
            BigButton {
                anchors.bottom: parent.bottom
                width: parent.width
                visible: !root.state.report.making
                title: "Make one report"
                icon: "doc.richtext"
                busy: root.state.report.asking
                onClicked: root.state.makeReport()
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                anchors.bottomMargin: (34 - height) / 2
                visible: root.state.report.making
                spacing: 8
                Spinner {
                    anchors.verticalCenter: parent.verticalCenter
                    size: 13
                    color: Theme.secondary
                }
                Label {
                    text: "Making the report"
                }
            }
        }
        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.state.report.report.length > 0
            width: 300
            height: 13 + open.height
            TextButton {
                id: open
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.bottom: parent.bottom
                title: root.state.report.opening ? "Opening…" : "Open the report from " + root.state.report.when
                size: 13
                busy: root.state.report.opening
                onClicked: root.state.openReport()
            }
        }
    }
}
