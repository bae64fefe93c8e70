pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// The check of the suppliers' mail: the button that asks for one, the one under way, and how the last one ended.
Card {
    id: root

    required property SyncState state
    /// A sync can be asked for and stopped from here.
    property bool canAct: false
    /// How high what unfolds under the last sync may become.
    property real mostUnfolded: 260
    /// There is something to show.
    readonly property bool filled: root.canAct || root.state.underWay || root.state.over

    signal syncRequested
    signal stopRequested(jobId: string)

    visible: root.filled
    implicitHeight: column.implicitHeight + 24
    height: root.filled ? root.implicitHeight : 0
    radius: 14
    clip: true

    Accessible.role: Accessible.Grouping
    Accessible.name: "Sync"

    Behavior on height {
        StandardMove {}
    }

    // What takes the place of something else comes from a little below.
    component Arriving: Column {
        id: arriving
        property real below: 8
        opacity: 0
        transform: Translate {
            y: arriving.below
        }
        Component.onCompleted: {
            arriving.opacity = 1;
            arriving.below = 0;
        }
        Behavior on opacity {
            StandardFade {}
        }
        Behavior on below {
            StandardMove {}
        }
    }

    Column {
        id: column
        x: 12
        y: 12
        width: parent.width - 24

        When {
            active: root.state.underWay
            Arriving {
                width: column.width
                JobBlock {
                    width: parent.width
                    row: root.state.job
                    title: "Sync"
                    stoppable: root.canAct
                    onStopRequested: jobId => root.stopRequested(jobId)
                }
            }
        }
        When {
            active: root.canAct && !root.state.underWay
            Arriving {
                width: column.width
                spacing: 8
                BigButton {
                    width: parent.width
                    title: "Sync"
                    icon: "arrow.triangle.2.circlepath"
                    busy: root.state.starting
                    onClicked: root.syncRequested()
                }
                Label {
                    width: parent.width
                    text: "Checks supplier mail for new proofs, files them to Drive and runs the checks."
                    size: 11.5
                    lineHeight: 15
                    lineHeightMode: Text.FixedHeight
                    wrapMode: Text.Wrap
                    color: Theme.secondary
                }
            }
        }
        When {
            active: root.state.over
            Column {
                width: column.width
                Item {
                    visible: root.canAct
                    width: parent.width
                    height: 10 + line.height + 9
                    Rule {
                        id: line
                        y: 10
                        width: parent.width
                    }
                }
                SyncLast {
                    width: parent.width
                    row: root.state.last
                    mostUnfolded: root.mostUnfolded
                }
            }
        }
    }
}
