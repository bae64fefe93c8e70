pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A small capsule that names a state.
Item {
    id: root

    required property string text
    property color color: Theme.secondary
    /// The text's colour where `color` is too weak to be read on its own wash.
    property color ink: root.color
    /// The ground; without one, `color` at a low opacity.
    property color soft: "transparent"
    property bool dot: false

    implicitWidth: Math.ceil(row.implicitWidth) + 16
    implicitHeight: Math.ceil(label.implicitHeight) + 6

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Rectangle {
        objectName: "ground"
        anchors.fill: parent
        radius: height / 2
        color: root.soft.a > 0 ? root.soft : root.color
        opacity: root.soft.a > 0 ? 1 : Theme.chipWash
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Rectangle {
            visible: root.dot
            anchors.verticalCenter: parent.verticalCenter
            width: 6
            height: 6
            radius: 3
            color: root.color
        }
        Label {
            id: label
            objectName: "text"
            spoken: false
            text: root.text
            size: 11.5
            weight: Font.Medium
            color: root.ink
        }
    }
}
