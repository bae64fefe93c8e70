pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A small picture of a file or page: fills its frame, with round corners and a hairline.
Item {
    id: root

    required property string key
    property real radius: 3

    Rectangle {
        anchors.fill: parent
        visible: !picture.hasPicture
        radius: root.radius
        color: Theme.track
    }
    RemoteImage {
        id: picture
        anchors.fill: parent
        key: root.key
        fill: true
        radius: root.radius
    }
    Outlined {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
    }
}
