pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// What a job did, step by step: the last few, under a line that counts those before them.
Column {
    id: root

    required property list<string> steps
    /// The last step is under way.
    property bool live: false

    readonly property list<string> listed: JobTexts.listedSteps(root.steps)
    readonly property string earlier: JobTexts.earlierSteps(root.steps)

    spacing: 5

    Accessible.role: Accessible.List
    Accessible.name: "Steps"

    Label {
        visible: root.earlier.length > 0
        height: 16
        text: root.earlier
        size: 12
        color: Theme.secondary
    }
    Repeater {
        // By their number, so that a step that comes leaves those before it as they are.
        model: root.listed.length

        Item {
            id: step
            required property int index
            readonly property string text: root.listed[step.index] ?? ""
            readonly property bool underWay: root.live && step.index === root.listed.length - 1

            width: root.width
            height: Math.max(16, label.height)

            Accessible.role: Accessible.ListItem
            Accessible.name: step.text
            Accessible.description: step.underWay ? "under way" : "done"

            Symbol {
                visible: !step.underWay
                y: 3
                name: "checkmark.circle.fill"
                size: 11
                color: Theme.reviewed.plain
            }
            Spinner {
                visible: step.underWay
                x: 0.5
                y: 3.5
                size: 10
            }
            Label {
                id: label
                x: 11 + 7
                width: parent.width - x
                text: step.text
                size: 12
                wrapMode: Text.Wrap
                maximumLineCount: 2
                lineHeight: 16
                lineHeightMode: Text.FixedHeight
                color: step.underWay ? Theme.text : Theme.secondary
                spoken: false
            }
        }
    }
}
