pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// One of a few, side by side. The choice is the screen's: it follows `chosen` only when `current` is set.
Item {
    id: root

    required property list<string> titles
    property int current: 0
    /// What is being chosen, for those who cannot see it; also the hint.
    property string name: ""
    property string help: ""

    signal chosen(index: int)

    readonly property int inset: 2
    readonly property Item currentCell: cells.count > 0 ? cells.itemAt(root.current) : null

    implicitWidth: row.implicitWidth + 2 * root.inset
    implicitHeight: 26
    activeFocusOnTab: true
    opacity: root.enabled ? 1 : Theme.disabled

    Accessible.role: Accessible.PageTabList
    Accessible.name: root.name
    Accessible.description: root.help
    Accessible.focusable: true

    function choose(index: int) {
        if (root.enabled && index >= 0 && index < root.titles.length && index !== root.current)
            root.chosen(index);
    }

    Keys.onLeftPressed: root.choose(root.current - 1)
    Keys.onRightPressed: root.choose(root.current + 1)

    Rectangle {
        anchors.fill: parent
        radius: 7
        color: Theme.track
    }
    Item {
        id: plate
        visible: root.currentCell !== null
        x: root.inset + (root.currentCell ? root.currentCell.x : 0)
        y: root.inset
        width: root.currentCell ? root.currentCell.width : 0
        height: row.height

        Behavior on x {
            StandardMove {}
        }
        Behavior on width {
            StandardMove {}
        }
        Shadow {
            anchors.fill: parent
            radius: 5.5
            drop: 1
            blur: 2
            color: Theme.segmentShade
        }
        Outlined {
            anchors.fill: parent
            radius: 5.5
            color: Theme.segment
        }
    }
    Row {
        id: row
        x: root.inset
        y: root.inset
        height: root.height - 2 * root.inset
        Repeater {
            id: cells
            model: root.titles
            Item {
                id: cell
                required property string modelData
                required property int index
                readonly property bool on: cell.index === root.current

                objectName: "cell" + cell.index
                // As wide as its title is when chosen: choosing moves nothing.
                width: Math.ceil(measure.advanceWidth) + 20
                height: row.height

                Accessible.role: Accessible.PageTab
                Accessible.name: cell.modelData
                Accessible.selected: cell.on
                Accessible.selectable: true
                Accessible.onPressAction: root.choose(cell.index)

                TextMetrics {
                    id: measure
                    font: Appearance.face(12, Font.DemiBold, 0)
                    text: cell.modelData
                }
                Label {
                    anchors.centerIn: parent
                    text: cell.modelData
                    size: 12
                    weight: cell.on ? Font.DemiBold : Font.Medium
                    color: cell.on || area.containsMouse ? Theme.text : Theme.secondary
                    spoken: false
                }
                MouseArea {
                    id: area
                    anchors.fill: parent
                    hoverEnabled: true
                    onClicked: root.choose(cell.index)
                }
            }
        }
    }
    Hint {
        text: root.help
    }
    FocusRing {
        around: 7
    }
}
