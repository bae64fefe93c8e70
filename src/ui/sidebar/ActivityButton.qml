pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Opens what happened on the board, and closes it.
Pressable {
    id: root

    property bool open: false

    implicitWidth: row.implicitWidth + 18
    implicitHeight: 26
    radius: 7
    name: "Activity"
    Accessible.checkable: true
    Accessible.checked: root.open

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        visible: root.hovered || root.open
        color: root.pressed || root.open ? Theme.pressed : Theme.hover
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "clock.arrow.circlepath"
            size: 12
            bold: true
            color: Theme.text
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.name
            size: 12
            weight: Font.DemiBold
            spoken: false
        }
    }
}
