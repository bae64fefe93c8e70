pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// What ours says and what the supplier's says instead, what differs on a ground.
Column {
    id: root

    required property passage ours
    required property passage theirs
    required property string supplier

    readonly property int gap: 12
    // As wide as the longer of the labels, but a name is cut before it takes the room of the texts.
    readonly property real labels: Math.min(Math.ceil(Math.max(oursLabel.implicitWidth, theirsLabel.implicitWidth)), root.width * 0.4)

    spacing: 4

    component Side: TextEdit {
        id: side

        required property passage passage
        required property color ground
        required property real wash

        enabled: false
        readOnly: true
        text: side.passage.text
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        renderType: TextEdit.NativeRendering
        font: Appearance.face(11.5, Font.Medium, 0)
        color: Theme.text
        Accessible.role: Accessible.StaticText
        Accessible.name: side.passage.text

        Repeater {
            // Asked for anew whenever the lines may have changed.
            model: side.width > 0 && side.contentHeight > 0 ? RunGrounds.of(side.textDocument, side.passage.from, side.passage.length) : []
            Rectangle {
                required property rect modelData
                z: -1
                x: modelData.x - 1
                y: modelData.y
                width: modelData.width + 2
                height: modelData.height
                radius: 2.5
                color: Appearance.faded(side.ground, side.wash)
            }
        }
    }

    Item {
        width: parent.width
        height: Math.max(oursLabel.height, oursText.height)
        Label {
            id: oursLabel
            width: root.labels
            text: "Ours"
            size: 11.5
            color: Theme.tertiary
        }
        Side {
            id: oursText
            objectName: "ours"
            x: root.labels + root.gap
            width: parent.width - x
            passage: root.ours
            ground: Theme.text
            wash: Theme.oursWash
        }
    }
    Item {
        width: parent.width
        height: Math.max(theirsLabel.height, theirsText.height)
        Label {
            id: theirsLabel
            width: root.labels
            text: root.supplier
            size: 11.5
            color: Theme.tertiary
        }
        Side {
            id: theirsText
            objectName: "theirs"
            x: root.labels + root.gap
            width: parent.width - x
            passage: root.theirs
            ground: Theme.accent.plain
            wash: Theme.theirsWash
        }
    }
}
