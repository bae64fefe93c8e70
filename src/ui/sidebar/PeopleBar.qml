pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// Who is on the board, who is there now, and the way to what they did.
Item {
    id: root

    required property QtObject people
    /// The button that opens the activity list.
    readonly property alias opener: activity

    implicitHeight: 46

    Flickable {
        id: bar
        // With room around them for the rings.
        readonly property int around: 5
        readonly property real room: bar.width - 2 * bar.around
        x: 17 - bar.around
        width: activity.x - x - 9
        height: parent.height
        contentWidth: faces.width + 2 * bar.around
        interactive: bar.contentWidth > bar.width
        boundsBehavior: Flickable.StopAtBounds
        clip: bar.interactive

        Row {
            id: faces
            x: bar.around
            anchors.verticalCenter: parent.verticalCenter
            // Many people stand closer; of a crowd the others are scrolled to.
            spacing: Math.max(3, Math.min(11, (bar.room - 22 * crowd.count) / Math.max(1, crowd.count - 1)))

            Repeater {
                id: crowd
                model: root.people

                Avatar {
                    required property personRow row
                    required property int index
                    // Nobody covers the dot of the one before.
                    z: -index
                    email: row.key
                    name: row.name
                    size: 22
                    ring: row.live
                    dot: row.live
                    help: row.help
                    photo: row.photo
                    color: row.color
                }
            }
        }
        WheelHandler {
            enabled: bar.interactive
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            onWheel: event => {
                const by = event.angleDelta.x !== 0 ? event.angleDelta.x : event.angleDelta.y;
                bar.contentX = Math.max(0, Math.min(bar.contentWidth - bar.width, bar.contentX - by / 2));
            }
        }
    }
    ActivityButton {
        id: activity
        anchors.right: account.left
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        open: Store.showActivity
        onClicked: Store.toggleActivity()
    }
    AccountMenu {
        id: account
        anchors.right: parent.right
        anchors.rightMargin: 9
        anchors.verticalCenter: parent.verticalCenter
        busy: Store.busy.includes("photo")
        onPhotoRequested: Store.changePhoto()
        onSignOutRequested: Store.signOut()
    }
}
