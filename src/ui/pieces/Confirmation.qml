pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Asks before something is done that cannot be taken back. The keyboard begins on the way out.
Overlay {
    id: root

    required property string question
    /// What the button says that does it.
    required property string action

    signal confirmed

    Accessible.role: Accessible.Dialog
    Accessible.name: root.question

    Rectangle {
        anchors.fill: parent
        color: Theme.shadow
    }
    Floating {
        objectName: "panel"
        anchors.centerIn: parent
        width: Math.max(260, buttons.width + 36, Math.min(360, words.implicitWidth + 36))
        height: words.height + buttons.height + 52
        radius: 14

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        Label {
            id: words
            objectName: "question"
            x: 18
            y: 18
            width: parent.width - 36
            text: root.question
            size: 14
            weight: Font.DemiBold
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.rightMargin: 18
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 16
            spacing: 8

            Pill {
                id: cancel
                objectName: "cancel"
                focus: true
                title: "Cancel"
                KeyNavigation.tab: act
                KeyNavigation.backtab: act
                KeyNavigation.right: act
                onClicked: root.dismissed()
            }
            Pill {
                id: act
                objectName: "act"
                title: root.action
                tone: Tone.Issue
                filled: true
                KeyNavigation.tab: cancel
                KeyNavigation.backtab: cancel
                KeyNavigation.left: cancel
                onClicked: {
                    root.dismissed();
                    root.confirmed();
                }
            }
        }
    }
}
