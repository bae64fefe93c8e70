pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root
import Vexal.Sidebar
import Vexal.File
import Vexal.Inspector

/// The board: its files at the leading edge, what is selected of them beside.
FocusScope {
    id: root

    required property RootState state
    /// It outlives the view: what shows a file goes a moment after the rest.
    required property FileState file
    required property InspectorState page

    Sidebar {
        id: sidebar
        width: 288
        height: parent.height
    }
    AppMenuPlace {
        opener: sidebar.menuButton
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
    // Placed by numbers, for they hold from the beginning; anchors come last, and what is in it would be laid out twice.
    FocusScope {
        id: detail
        focus: true
        x: sidebar.width + rule.width
        y: update.height + offline.height
        width: root.width - x
        height: root.height - y

        When {
            active: root.state.place === RootState.OneFile
            FileView {
                width: detail.width
                height: detail.height
                focus: true
                state: root.file
                page: root.page
            }
        }
        When {
            active: root.state.place === RootState.SeveralFiles
            MultiView {
                anchors.fill: parent
                state: root.file
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
}
