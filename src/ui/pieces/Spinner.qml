pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Something is under way: an open ring that turns as long as it is seen.
OpenRing {
    id: root

    property real size: 12

    readonly property bool turning: root.visible && Theme.lively

    implicitWidth: root.size
    implicitHeight: root.size
    color: Theme.accent.plain

    RotationAnimator on rotation {
        running: root.turning
        from: 0
        to: 360
        duration: Theme.turn
        loops: Animation.Infinite
    }
}
