pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A job that waits, runs or does not answer. Of one that is over it shows nothing.
Column {
    id: root

    required property jobRow row
    /// What the button says that starts such a job.
    required property string title
    /// The job can be stopped from here.
    property bool stoppable: true

    signal stopRequested(jobId: string)

    spacing: 10

    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    component Stop: Item {
        visible: root.stoppable
        implicitWidth: root.row.stopping ? stopping.implicitWidth : stop.implicitWidth
        implicitHeight: stop.implicitHeight
        TextButton {
            id: stop
            visible: !root.row.stopping
            title: "Stop"
            onClicked: root.stopRequested(root.row.key)
        }
        Label {
            id: stopping
            visible: root.row.stopping
            text: "Stopping."
            size: 11.5
            color: Theme.secondary
        }
    }

    When {
        active: root.row.stage === JobStage.InLine
        Column {
            width: root.width
            Label {
                text: "In line"
                size: 13.5
                weight: Font.DemiBold
            }
            Label {
                text: "Waiting for the Mac mini"
                size: 12
                color: Theme.secondary
            }
        }
    }
    When {
        active: root.row.stage === JobStage.Running
        Column {
            width: root.width
            spacing: 10
            Item {
                width: parent.width
                height: working.height
                VexalMark {
                    id: mark
                    y: 1
                    size: 15
                    working: true
                }
                WorkingLine {
                    id: working
                    x: mark.implicitWidth + 9
                    width: parent.width - x
                    who: "Claude"
                }
            }
            StepsList {
                visible: root.row.steps.length > 0
                width: parent.width
                steps: root.row.steps
                live: true
            }
            Item {
                width: parent.width
                height: started.height
                Label {
                    id: started
                    anchors.left: parent.left
                    anchors.right: halt.left
                    anchors.rightMargin: 8
                    text: root.row.started
                    size: 11.5
                    color: Theme.secondary
                }
                Stop {
                    id: halt
                    anchors.right: parent.right
                    width: visible ? implicitWidth : 0
                }
            }
        }
    }
    When {
        active: root.row.stage === JobStage.Stuck
        Column {
            width: root.width
            spacing: 6
            Item {
                width: parent.width
                height: heading.height
                Symbol {
                    id: triangle
                    y: 1
                    name: "exclamationmark.triangle.fill"
                    size: 14
                    color: Theme.lookAt.plain
                }
                Label {
                    id: heading
                    anchors.left: triangle.right
                    anchors.leftMargin: 7
                    anchors.right: parent.right
                    text: "The Mac mini stopped answering"
                    size: 13.5
                    weight: Font.DemiBold
                    wrapMode: Text.Wrap
                }
            }
            Label {
                width: parent.width
                text: JobTexts.stuckAdvice(root.title)
                size: 12
                lineHeight: 16
                lineHeightMode: Text.FixedHeight
                wrapMode: Text.Wrap
                color: Theme.secondary
            }
            Stop {}
        }
    }
}
