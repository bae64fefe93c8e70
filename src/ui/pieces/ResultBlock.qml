pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// How a job ended, who had asked for it, and what it brought about.
Column {
    id: root

    required property resultRow row
    readonly property tint tint: Theme.tint(root.row.tone)

    spacing: 8

    Accessible.role: Accessible.Grouping
    Accessible.name: root.row.title

    Row {
        spacing: 7
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.row.symbol
            size: 15
            color: root.tint.plain
        }
        Label {
            text: root.row.title
            size: 13.5
            weight: Font.DemiBold
        }
    }
    Label {
        width: root.width
        text: root.row.by
        size: 11.5
        color: Theme.secondary
    }
    Repeater {
        model: root.row.lines

        Item {
            id: line
            required property resultLine modelData
            readonly property tint tint: Theme.tint(line.modelData.tone)

            width: root.width
            height: Math.max(16, text.height)

            Symbol {
                x: (15 - width) / 2
                y: (16 - height) / 2
                name: line.modelData.symbol
                size: 9.5
                bold: true
                color: line.tint.ink
            }
            Label {
                id: text
                x: 15 + 7
                width: parent.width - x
                text: line.modelData.text
                size: 12
                lineHeight: 16
                lineHeightMode: Text.FixedHeight
                wrapMode: Text.Wrap
            }
        }
    }
}
