pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A button that is nothing but its words.
Pressable {
    id: root

    required property string title
    property real size: 11.5
    property int weight: Font.DemiBold
    property color color: Theme.accent.ink

    implicitWidth: Math.ceil(label.implicitWidth)
    implicitHeight: Math.ceil(label.implicitHeight)
    radius: 3
    name: root.title
    opacity: root.enabled ? 1 : Theme.disabled

    Label {
        id: label
        anchors.fill: parent
        text: root.title
        size: root.size
        weight: root.weight
        color: root.color
        spoken: false
        opacity: root.hovered ? Theme.underPointer : 1
    }
}
