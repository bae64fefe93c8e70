pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Shows where the keyboard is: a ring around its parent that follows the parent's shape.
Rectangle {
    id: root

    /// The radius of the parent's corners.
    property real around: 0
    readonly property int thickness: 2
    readonly property int distance: 2

    objectName: "focusRing"
    anchors.fill: parent
    anchors.margins: -(root.thickness + root.distance)
    visible: parent.activeFocus
    radius: root.around + root.thickness + root.distance
    color: "transparent"
    border.width: root.thickness
    border.color: Theme.accent.plain
    opacity: Theme.focusRing
}
