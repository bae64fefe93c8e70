pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Tells that what shows may be old. It has no button: the board is asked for again and again.
Banner {
    id: root

    required property RootState state
    // What it said stays while it goes away.
    property string problem: ""

    shown: root.state.problem.length > 0
    padding: 7
    color: Theme.lookAt.plain
    wash: Theme.offlineWash

    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.problem + " " + calm.text

    Binding {
        root.problem: root.state.problem
        when: root.shown
        restoreMode: Binding.RestoreNone
    }
    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        name: "wifi.exclamationmark"
        size: 14
        color: Theme.lookAt.ink
    }
    Label {
        id: problem
        anchors.left: symbol.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width - x - 8 - Math.min(calm.implicitWidth, 0.3 * parent.width))
        text: root.problem.replace(/\s+/g, " ")
        size: 12.5
        spoken: false
        Hint {
            text: problem.truncated ? root.problem : ""
        }
    }
    Label {
        id: calm
        anchors.left: problem.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: "What's here stays. It tries again on its own."
        size: 11.5
        color: Theme.secondary
        spoken: false
    }
}
