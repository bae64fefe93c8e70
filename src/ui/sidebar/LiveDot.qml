pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// How fresh the board is: a dot and a word. It does not move.
Row {
    id: root

    required property string text
    required property int tone

    spacing: 6

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 7
        height: 7
        radius: 3.5
        color: root.tone === Tone.Neutral ? Theme.tertiary : Theme.tint(root.tone).plain
    }
    Label {
        text: root.text
        size: 11
        color: Theme.secondary
    }
}
