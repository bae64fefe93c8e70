pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// The column at the leading edge of the board.
Rectangle {
    id: root

    color: Theme.sidebar

    Accessible.role: Accessible.Pane
    Accessible.name: "Board"

    SidebarState {
        id: sidebar
        store: Store
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
        LiveDot {
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: name.verticalCenter
            text: sidebar.liveText
            tone: sidebar.liveTone
        }
    }
    Rule {
        id: upper
        anchors.top: header.bottom
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
}
