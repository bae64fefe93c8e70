pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// The focused finding enlarged, on the supplier's page and on ours. It floats over the foot of the canvas.
Item {
    id: root

    required property closeup closeup
    /// The last one that was open: it stays while the loupe fades.
    property closeup shown
    required property bool open
    readonly property real crops: root.width - 24

    signal closed

    visible: root.opacity > 0
    enabled: root.open
    opacity: root.open ? 1 : 0

    Accessible.role: Accessible.Pane
    Accessible.name: root.shown.title

    Component.onCompleted: root.shown = root.closeup
    onCloseupChanged: {
        if (root.closeup.open)
            root.shown = root.closeup;
    }
    Behavior on opacity {
        StandardFade {}
    }
    transform: Translate {
        y: root.open ? 0 : 12
        Behavior on y {
            StandardMove {}
        }
    }

    Floating {
        anchors.fill: parent
        radius: 14
    }
    // Nothing that lies under the loupe feels the pointer.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }
    Row {
        x: 12
        y: 12
        spacing: 12

        Crop {
            width: (root.crops - 12) / 2
            height: root.height - 24
            key: root.shown.supplier.key
            aspect: root.shown.supplier.aspect
            box: root.shown.box
            boxes: root.shown.boxes
            color: root.shown.tone === Tone.Neutral ? Theme.expected : Theme.tint(root.shown.tone).plain
            label: root.shown.supplier.label
            dot: Theme.accent.plain
        }
        Crop {
            width: (root.crops - 12) / 2
            height: root.height - 24
            key: root.shown.ours.key
            aspect: root.shown.ours.aspect
            box: root.shown.refBox
            boxes: root.shown.refBoxes
            color: Theme.expected
            label: root.shown.ours.label
            missing: root.shown.missing
        }
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 8
        y: 6
        implicitWidth: 26
        implicitHeight: 26
        icon: "xmark.circle.fill"
        size: 15
        help: "Close"
        onClicked: root.closed()
    }
}
