pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A sheet of paper on the desk with a page's picture on it.
Item {
    id: root

    required property string key
    required property string label

    Accessible.role: Accessible.Graphic
    Accessible.name: root.label

    Shadow {
        anchors.fill: parent
        drop: Theme.dark ? 6 : 4
        blur: Theme.dark ? 20 : 14
        color: Theme.pageShadow
    }
    Rectangle {
        anchors.fill: parent
        color: picture.hasPicture ? Theme.paper : Theme.card
    }
    RemoteImage {
        id: picture
        anchors.fill: parent
        key: root.key
    }
    Rectangle {
        anchors.fill: parent
        anchors.margins: -border.width
        color: "transparent"
        border.width: 1 / Screen.devicePixelRatio
        border.color: Theme.hair
    }
}
