pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// What can be done with a file as a whole: its review ended or begun again, its report asked for, stopped and opened.
Row {
    id: root

    required property FileState state
    /// There is room for all that is said of the report.
    property bool roomy: true
    readonly property reportProgress report: root.state.report

    spacing: 7
    Accessible.role: Accessible.ToolBar
    Accessible.name: "Review"

    ReportWords {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.roomy && (root.report.failed || root.report.by.length > 0)
        report: root.report
    }
    Pill {
        objectName: "open"
        visible: root.report.report.length > 0
        title: root.report.opening ? "Opening…" : "Open"
        icon: "arrow.down.doc"
        busy: root.report.opening
        onClicked: root.state.openReport()
    }
    Row {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.report.making
        spacing: 7
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            size: 11
            color: Theme.secondary
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 220)
            text: root.report.step
            size: 12
        }
        TextButton {
            objectName: "stop"
            anchors.verticalCenter: parent.verticalCenter
            visible: !root.report.stopping
            title: "Stop"
            onClicked: root.state.stopReport()
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.report.stopping
            text: "Stopping."
            size: 11.5
            color: Theme.secondary
        }
    }
    Pill {
        objectName: "make"
        visible: !root.report.making
        title: root.report.report.length > 0 ? "New report" : "Make report"
        icon: "doc.richtext"
        busy: root.report.asking
        onClicked: root.state.makeReport()
    }
    Pill {
        objectName: "review"
        title: root.state.header.reviewed ? "Reopen" : "Mark reviewed"
        icon: root.state.header.reviewed ? "arrow.uturn.backward" : "checkmark"
        tone: root.state.header.reviewed ? Tone.Neutral : Tone.Reviewed
        busy: root.state.settingStatus
        onClicked: root.state.toggleReviewed()
    }
}
