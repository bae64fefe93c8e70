pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// How grave a finding is, and whether it has a place on the page.
Item {
    id: root

    required property findingRow row
    /// The colour of what has no tone of its own.
    required property color quiet

    readonly property tint tint: Theme.tint(root.row.tone)

    implicitHeight: 16

    Rectangle {
        id: dot
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: root.tint.plain
    }
    Label {
        objectName: "tag"
        anchors.left: dot.right
        anchors.leftMargin: 5
        anchors.verticalCenter: parent.verticalCenter
        text: root.row.tag
        size: 11
        weight: Font.Bold
        color: root.row.tone === Tone.Neutral ? root.quiet : root.tint.ink
        spoken: false
    }
    Symbol {
        objectName: "scope"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.row.placed
        name: "scope"
        size: 12
        color: root.row.focused ? root.tint.ink : Theme.tertiary
    }
}
