pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// A file in the sidebar's list. Shows a row; asks to be selected; decides nothing.
Item {
    id: root

    required property fileRow row
    /// The list's keyboard cursor is here.
    property bool current: false
    /// And it is shown there.
    property bool ring: root.current
    signal selected(additive: bool)

    implicitHeight: 50

    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.title
    Accessible.description: root.row.count.help
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.selectable: true
    Accessible.selected: root.row.selected
    Accessible.onPressAction: root.selected(false)

    Rectangle {
        anchors.fill: parent
        radius: 10
        color: root.row.selected ? Theme.accent.plain : hover.hovered ? Theme.hover : "transparent"
        opacity: root.row.selected ? Theme.chosenWash : 1
        Behavior on opacity {
            StandardFade {}
        }
    }
    Rectangle {
        visible: root.row.selected
        anchors.fill: parent
        radius: 10
        color: "transparent"
        border.width: 1 / Screen.devicePixelRatio
        border.color: Theme.accent.plain
        opacity: Theme.chosenOutline
    }
    FocusRing {
        visible: root.ring
        around: 10
    }
    Thumb {
        id: thumb
        anchors.verticalCenter: parent.verticalCenter
        x: 8
        width: 30
        height: 38
        key: root.row.thumb
    }
    Label {
        id: title
        anchors.left: thumb.right
        anchors.leftMargin: 10
        anchors.right: count.left
        anchors.rightMargin: 10
        y: root.row.details.length > 0 ? 8 : (root.height - height) / 2
        height: 17
        spoken: false
        text: root.row.title
        size: 13
        weight: Font.DemiBold
    }
    Label {
        anchors.left: title.left
        anchors.right: title.right
        anchors.top: title.bottom
        height: 16
        spoken: false
        text: root.row.details
        size: 11.5
        color: root.row.selected ? Theme.chosenText : Theme.secondary
    }
    FileRowCount {
        id: count
        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 8
        count: root.row.count
        overChosen: root.row.selected
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap
        onTapped: root.selected((tap.point.modifiers & Qt.ControlModifier) !== 0)
    }
}
