pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// One of the judgements of a finding: filled with its tone while that is what the finding was judged.
Pressable {
    id: root

    required property string title
    required property string icon
    required property int tone
    property bool on: false

    readonly property tint tint: Theme.tint(root.tone)
    readonly property color ink: root.on ? Theme.onSolid : root.tint.ink

    implicitWidth: Math.ceil(row.implicitWidth) + 18
    implicitHeight: Math.ceil(label.implicitHeight) + 9
    radius: root.height / 2
    name: root.title
    opacity: root.enabled ? 1 : Theme.disabled

    Accessible.checkable: true
    Accessible.checked: root.on

    Rectangle {
        objectName: "wash"
        visible: !root.on
        anchors.fill: parent
        radius: root.radius
        color: Appearance.faded(root.tint.plain, root.pressed ? Theme.pressedWash : root.hovered ? Theme.stateHoverWash : Theme.stateWash)
    }
    Solid {
        visible: root.on
        anchors.fill: parent
        radius: root.radius
        tone: root.tone
        hovered: root.hovered
        pressed: root.pressed
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 5
        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: symbol.width
            height: symbol.height
            Symbol {
                id: symbol
                visible: !spinner.visible
                name: root.icon
                size: 10.5
                bold: true
                color: root.ink
            }
            Spinner {
                id: spinner
                anchors.centerIn: parent
                visible: root.busy && root.on
                size: 10
                color: root.ink
            }
        }
        Label {
            id: label
            objectName: "text"
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            size: 12
            weight: Font.DemiBold
            color: root.ink
            spoken: false
        }
    }
}
