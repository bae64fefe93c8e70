pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// The pin of the note being written: its tip is at the item's origin. It pulses about its tip while it is looked at.
Item {
    id: root

    readonly property bool pulse: root.visible && Theme.lively && !Theme.reducedMotion

    Accessible.role: Accessible.Graphic
    Accessible.name: "Note"

    PinShape {
        id: pin
        x: -width / 2
        y: -height
        color: Theme.accent.solid
        outline: Theme.onSolid
        plus: true
        transformOrigin: Item.Bottom

        SequentialAnimation on scale {
            running: root.pulse
            loops: Animation.Infinite
            NumberAnimation {
                from: 1
                to: 1.12
                duration: 900
                easing.type: Easing.InOutQuad
            }
            NumberAnimation {
                from: 1.12
                to: 1
                duration: 900
                easing.type: Easing.InOutQuad
            }
        }
    }
    Capsule {
        // On whichever side of the pin the page has room for it.
        x: root.x + 17 + width > root.parent.width && root.x > 17 + width ? -17 - width : 17
        y: -29
        icon: "mappin.and.ellipse"
        text: "Note"
    }
}
