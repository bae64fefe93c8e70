pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// Says why nothing is known of a file's pages, and offers to ask for them again.
Column {
    id: root

    required property FileState state

    spacing: 12

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.state.problem
        color: Theme.secondary
        Accessible.role: Accessible.AlertMessage
    }
    Pill {
        anchors.horizontalCenter: parent.horizontalCenter
        title: "Try again"
        icon: "arrow.clockwise"
        onClicked: root.state.tryAgain()
    }
}
