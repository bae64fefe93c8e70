pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Says that somebody is at work, and at what: another phrase every few seconds, a light passing over it.
Gleam {
    id: root

    required property string who
    /// How long a phrase stays, in milliseconds.
    property int stay: 3000
    /// How long the light takes to pass.
    readonly property int sweep: 1600
    /// Which phrase it is.
    property int n: 0

    text: root.who + " is " + JobTexts.workingPhrase(root.n)
    font: Appearance.face(13.5, Font.DemiBold, 0)
    color: Theme.secondary
    light: Theme.text
    strength: 0.85

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    onNChanged: fade.restart()
    // A shorter phrase leaves the room of a longer one: what stands below would move every few seconds.
    onImplicitHeightChanged: root.height = Math.max(root.height, root.implicitHeight)

    Timer {
        running: root.visible && Theme.lively
        interval: root.stay
        repeat: true
        onTriggered: root.n += 1
    }
    NumberAnimation {
        id: fade
        target: root
        property: "opacity"
        from: 0
        to: 1
        duration: Theme.fade
        easing: Appearance.curve
    }
    NumberAnimation on phase {
        running: root.visible && Theme.playful
        from: -1
        to: 1
        duration: root.sweep
        loops: Animation.Infinite
        onStopped: root.phase = -1
    }
}
