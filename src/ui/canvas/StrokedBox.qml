pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// An outline of any width whose middle runs along the edge of the item, with corners of radius 3.
Item {
    id: root

    required property real line
    required property color color

    Rectangle {
        anchors.fill: parent
        anchors.margins: -root.line / 2
        radius: 3 + root.line / 2
        color: "transparent"
        border.pixelAligned: false
        border.width: root.line
        border.color: root.color
        antialiasing: true
    }
    Behavior on line {
        StandardFade {}
    }
}
