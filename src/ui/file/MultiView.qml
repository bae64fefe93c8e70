pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// Several selected files: how many, and their faces.
Item {
    id: root

    required property FileState state

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 40, 460)
        spacing: 18

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.state.filesHeading
            size: 26
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Flow {
            id: thumbs
            readonly property int perRow: Math.max(1, Math.min(root.state.thumbs.length, Math.floor((parent.width + 5) / 75)))
            anchors.horizontalCenter: parent.horizontalCenter
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
}
