pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Tells of a newer version, and where it is.
Banner {
    id: root

    required property RootState state
    // What it said stays while it goes away.
    property string title: ""
    property string notes: ""

    shown: root.state.updateTitle.length > 0
    padding: 8
    color: Theme.accent.plain
    wash: Theme.updateWash

    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.notes.length > 0 ? root.title + " " + root.notes : root.title

    Binding {
        root.title: root.state.updateTitle
        root.notes: root.state.updateNotes
        when: root.shown
        restoreMode: Binding.RestoreNone
    }
    Symbol {
        id: symbol
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow.down.circle.fill"
        size: 14
        color: Theme.accent.plain
    }
    Label {
        id: title
        anchors.left: symbol.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, 0.6 * root.width)
        text: root.title
        size: 12.5
        weight: Font.DemiBold
        spoken: false
    }
    Label {
        anchors.left: title.right
        anchors.leftMargin: 8
        anchors.right: download.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.notes.replace(/\s+/g, " ")
        size: 12.5
        color: Theme.secondary
        spoken: false
    }
    TextButton {
        id: download
        objectName: "download"
        anchors.right: close.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        title: "Download"
        size: 12.5
        onClicked: root.state.download()
    }
    IconButton {
        id: close
        objectName: "close"
        anchors.right: parent.right
        anchors.rightMargin: -8
        anchors.verticalCenter: parent.verticalCenter
        icon: "xmark"
        size: 10
        bold: true
        help: "Dismiss"
        onClicked: root.state.dismissUpdate()
    }
}
