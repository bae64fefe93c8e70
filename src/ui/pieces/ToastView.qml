pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A sentence that passes by, with a way back where there is one. It asks for its own end with the id it was given, so
/// that its timer can never end a younger toast.
Item {
    id: root

    required property string toastId
    required property string text
    property string undoLabel: ""
    /// How long a toast stays, in milliseconds.
    property int stay: 4000

    signal undone(toastId: string)
    signal expired(toastId: string)

    /// The most that a line of it may take; longer sentences wrap.
    property int widest: 640
    readonly property int paddingX: 16
    readonly property int paddingY: 10

    implicitWidth: Math.ceil(row.implicitWidth) + 2 * root.paddingX
    implicitHeight: Math.ceil(row.implicitHeight) + 2 * root.paddingY

    Accessible.role: Accessible.Notification
    Accessible.name: root.text

    onToastIdChanged: {
        if (!Theme.resting)
            timer.restart();
    }

    Timer {
        id: timer
        objectName: "timer"
        interval: root.stay
        running: !Theme.resting
        onTriggered: root.expired(root.toastId)
    }
    Floating {
        anchors.fill: parent
        radius: 12
        color: Theme.toast
        outline: Theme.toastRing
    }
    Row {
        id: row
        x: root.paddingX
        y: root.paddingY
        spacing: 15
        Label {
            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), root.widest)
            wrapMode: Text.Wrap
            maximumLineCount: 6
            text: root.text
            color: Theme.toastText
            spoken: false
        }
        TextButton {
            objectName: "undo"
            visible: root.undoLabel.length > 0
            title: root.undoLabel
            size: 13
            color: Theme.toastAction
            onClicked: root.undone(root.toastId)
        }
    }
}
