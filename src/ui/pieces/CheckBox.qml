pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A choice of its own. It asks to be toggled; `checked` is the screen's to set.
Pressable {
    id: root

    required property string title
    property bool checked: false

    signal toggled(checked: bool)

    implicitWidth: Math.ceil(row.implicitWidth)
    implicitHeight: 20
    radius: 4.5
    name: root.title
    opacity: root.enabled ? 1 : Theme.disabled
    onClicked: root.toggled(!root.checked)

    Accessible.role: Accessible.CheckBox
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.onToggleAction: root.press()

    Row {
        id: row
        anchors.verticalCenter: parent.verticalCenter
        spacing: 7
        Outlined {
            anchors.verticalCenter: parent.verticalCenter
            width: 15
            height: 15
            radius: 4.5
            color: root.checked ? Theme.accent.solid : root.hovered ? Theme.hover : Theme.track
            border.color: root.checked ? Theme.accent.solid : Theme.hair2
            Symbol {
                anchors.centerIn: parent
                visible: root.checked
                name: "checkmark"
                size: 9
                bold: true
                color: Theme.onSolid
            }
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            size: 12
            spoken: false
        }
    }
}
