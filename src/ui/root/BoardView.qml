pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root
import Vexal.Sidebar
import Vexal.File

/// The board: its files at the leading edge, what is selected of them beside.
FocusScope {
    id: root

    required property RootState state

    Sidebar {
        id: sidebar
        width: 288
        height: parent.height
    }
    AppMenu {
        id: menu
        opener: sidebar.menuButton
        onAsked: menu.open = true
        onDismissed: menu.open = false
    }
    Rule {
        id: rule
        anchors.left: sidebar.right
        upright: true
        height: parent.height
    }
    UpdateBanner {
        id: update
        anchors.left: rule.right
        anchors.right: parent.right
        state: root.state
    }
    OfflineBanner {
        id: offline
        anchors.left: rule.right
        anchors.right: parent.right
        anchors.top: update.bottom
        state: root.state
    }
    FocusScope {
        id: detail
        focus: true
        anchors.left: rule.right
        anchors.right: parent.right
        anchors.top: offline.bottom
        anchors.bottom: parent.bottom

        When {
            active: root.state.place === RootState.OneFile
            FileView {
                anchors.fill: parent
                focus: true
                state: file
            }
        }
        When {
            active: root.state.place === RootState.SeveralFiles
            MultiView {
                anchors.fill: parent
                state: file
            }
        }
        EmptyState {
            anchors.centerIn: parent
            visible: root.state.place === RootState.NothingChosen
            title: root.state.emptyTitle
            line: root.state.emptyLine
        }
        Label {
            anchors.centerIn: parent
            visible: root.state.place === RootState.Loading
            text: "Loading the board…"
            color: Theme.secondary
        }
    }
    // It goes last, for the others speak of it.
    FileState {
        id: file
        store: Store
        time: PassingTime
    }
}
