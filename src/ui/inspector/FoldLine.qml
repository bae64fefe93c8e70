pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A line that sums up what is folded under it.
Pressable {
    id: root

    required property string text
    property bool open: false

    implicitHeight: 22
    radius: 6
    name: root.text
    Accessible.description: root.open ? "unfolded" : "folded"

    Symbol {
        id: seal
        anchors.verticalCenter: parent.verticalCenter
        name: "checkmark.seal"
        size: 14
        color: Theme.reviewed.plain
    }
    Label {
        anchors.left: seal.right
        anchors.leftMargin: 7
        anchors.right: chevron.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        size: 12.5
        weight: Font.DemiBold
        spoken: false
    }
    Symbol {
        id: chevron
        objectName: "chevron"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        size: 10
        bold: true
        color: Theme.tertiary
        rotation: root.open ? 90 : 0
        Behavior on rotation {
            StandardMove {}
        }
    }
}
