pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The product's mark: our file and their proof, facing away from a gap that opens and closes while work is under way.
Item {
    id: root

    property real size: 15
    property bool working: false
    /// One line weight for both halves; without it the left one is filled.
    property real line: 0

    readonly property real stroke: root.line > 0 ? root.line : Math.max(1.4, 0.085 * root.size)
    readonly property real closedGap: 0.10 * root.size
    readonly property real openGap: 0.30 * root.size
    property real gap: root.closedGap

    readonly property bool pulsing: root.working && root.visible && Theme.playful

    // As wide as at its widest while it works, so that nothing beside it moves.
    implicitWidth: root.size + (root.working ? root.openGap : root.closedGap)
    implicitHeight: root.size

    Accessible.role: Accessible.Graphic
    Accessible.name: "Vexal"

    HalfRound {
        x: (root.width - root.size - root.gap) / 2
        width: root.size / 2
        height: root.size
        color: root.line > 0 ? Theme.text : Theme.accent.plain
        stroke: root.line
    }
    HalfRound {
        x: (root.width + root.gap) / 2
        width: root.size / 2
        height: root.size
        mirrored: true
        color: Theme.text
        stroke: root.stroke
    }

    SequentialAnimation on gap {
        running: root.pulsing
        loops: Animation.Infinite
        onStopped: root.gap = Qt.binding(() => root.closedGap)
        NumberAnimation {
            to: root.openGap
            duration: Theme.pulse
            easing.type: Easing.InOutQuad
        }
        NumberAnimation {
            to: root.closedGap
            duration: Theme.pulse
            easing.type: Easing.InOutQuad
        }
    }
}
