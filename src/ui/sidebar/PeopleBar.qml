pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// Who is on the board, and who is there now.
Item {
    id: root

    required property QtObject people

    implicitHeight: 46

    Row {
        x: 17
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11

        Repeater {
            model: root.people

            Avatar {
                required property personRow row
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
}
