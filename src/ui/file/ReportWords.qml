pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// What is said of a report: that the last one failed, who made the one there is.
Row {
    id: root

    required property reportProgress report

    spacing: 7

    Label {
        visible: root.report.failed
        text: "The last report didn't finish."
        size: 11.5
        color: Theme.issue.ink
    }
    Label {
        visible: text.length > 0
        width: Math.min(implicitWidth, 240)
        text: root.report.by
        size: 11.5
        color: Theme.secondary
    }
}
