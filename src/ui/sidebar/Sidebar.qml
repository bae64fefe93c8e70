pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// The column at the leading edge of the board.
Rectangle {
    id: root

    /// The button that opens the program's menu.
    readonly property alias menuButton: menu

    color: Theme.sidebar
    // The activity list reaches over what stands beside the column.
    z: 1

    Accessible.role: Accessible.Pane
    Accessible.name: "Board"

    SidebarState {
        id: sidebar
        store: Store
        time: PassingTime
    }
    SyncState {
        id: sync
        store: Store
        time: PassingTime
    }
    ActivityState {
        id: activity
        store: Store
        time: PassingTime
    }
    FileListState {
        id: files
        store: Store
    }

    Item {
        id: header
        width: parent.width
        height: 40 + name.implicitHeight + 12

        Label {
            id: name
            x: 16
            y: 40
            text: "Vexal"
            size: 21
            weight: Font.DemiBold
        }
        IconButton {
            id: menu
            anchors.left: name.right
            anchors.leftMargin: 5
            anchors.verticalCenter: name.verticalCenter
            icon: "line.3.horizontal"
            size: 15
            help: "Menu"
            open: Actions.menu.checked
            onClicked: Actions.menu.trigger()
        }
        IconButton {
            id: refresh
            anchors.right: parent.right
            anchors.rightMargin: 9
            anchors.verticalCenter: name.verticalCenter
            icon: "arrow.clockwise"
            size: 12
            help: "Refresh"
            busy: Store.refreshing
            onClicked: Store.refreshNow()
        }
        LiveDot {
            anchors.right: refresh.left
            anchors.rightMargin: 5
            anchors.verticalCenter: name.verticalCenter
            text: sidebar.liveText
            tone: sidebar.liveTone
        }
    }
    SyncCard {
        id: card
        anchors.top: header.bottom
        x: 12
        width: parent.width - 24
        state: sync
        canAct: true
        onSyncRequested: Store.startSync()
        onStopRequested: jobId => Store.stopJob(jobId)
        // The files keep the larger part of the column.
        mostUnfolded: 0.4 * root.height
    }
    Rule {
        id: upper
        anchors.top: card.bottom
        anchors.topMargin: card.filled ? 10 : 0
        width: parent.width
    }
    FileList {
        anchors.top: upper.bottom
        anchors.bottom: lower.top
        width: parent.width
        state: files
        focus: true
    }
    Rule {
        id: lower
        anchors.bottom: people.top
        width: parent.width
    }
    PeopleBar {
        id: people
        anchors.bottom: parent.bottom
        width: parent.width
        people: sidebar.people
    }
    Kept {
        id: panel
        wanted: Store.showActivity
        ActivityView {
            state: activity
            open: panel.open
            opener: people.opener
            arrowAt: people.opener.x + people.opener.width / 2 - x
            x: people.opener.x - 21
            y: people.y + people.opener.y - 6 - arrowHeight - height
            mostHeight: Math.min(560, people.y + people.opener.y - 6 - arrowHeight - 16)
            onDismissed: Store.setShowActivity(false)
        }
    }
}
