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

    Row {
        id: faces
        // Many people stand closer, one behind the other if need be.
        readonly property real room: activity.x - x - 14
        x: 17
        anchors.verticalCenter: parent.verticalCenter
        spacing: Math.min(11, (room - 22 * crowd.count) / Math.max(1, crowd.count - 1))

        Repeater {
            id: crowd
            model: root.people

            Avatar {
                required property personRow row
                required property int index
                // Where they stand one behind the other, nobody covers the dot of the one before.
                z: -index
                email: row.key
                name: row.name
                size: 22
                ring: row.live
                dot: row.live
                help: row.help
                photo: row.photo
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
