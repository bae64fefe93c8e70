pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// A page in the strip: its picture, its label, and what is left to do on it.
Item {
    id: root

    required property pageCell row
    required property int index
    required property bool current
    /// The keyboard is on it.
    required property bool focused

    signal clicked

    readonly property bool marked: root.row.issues > 0 || root.row.open > 0
    readonly property size fitted: root.row.aspect > 46 / 57 ? Qt.size(46, 46 / root.row.aspect) : Qt.size(57 * root.row.aspect, 57)

    width: 58
    height: 80

    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.name
    Accessible.focusable: true
    Accessible.focused: root.focused
    Accessible.selectable: true
    Accessible.selected: root.current
    Accessible.onPressAction: root.clicked()

    Rectangle {
        anchors.fill: parent
        radius: 9
        color: Theme.accent.plain
        opacity: root.current ? Theme.currentWash : 0
        Behavior on opacity {
            StandardFade {}
        }
    }
    Rectangle {
        anchors.fill: parent
        radius: 9
        visible: area.containsMouse && !root.current
        color: area.pressed ? Theme.pressed : Theme.hover
    }
    Rectangle {
        anchors.fill: picture
        anchors.margins: -2.5
        visible: root.current
        radius: 5
        color: "transparent"
        border.pixelAligned: false
        border.width: 1.5
        border.color: Theme.accent.plain
    }
    Thumb {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        y: 5 + Math.round((57 - height) / 2)
        width: Math.max(1, Math.round(root.fitted.width))
        height: Math.max(1, Math.round(root.fitted.height))
        key: root.row.thumb
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 2
        spacing: 3
        Label {
            width: Math.min(implicitWidth, root.row.notes > 0 ? 24 : 48)
            text: root.row.label
            size: 10.5
            weight: root.current ? Font.DemiBold : Font.Normal
            color: root.current ? Theme.text : Theme.secondary
            spoken: false
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.row.notes > 0
            name: "text.bubble.fill"
            size: 9
            color: Theme.tertiary
        }
        Label {
            visible: root.row.notes > 0
            text: root.row.notes
            size: 10.5
            color: Theme.secondary
            spoken: false
        }
    }
    Rectangle {
        visible: root.marked
        x: picture.x + picture.width - width / 2 - 1
        y: Math.max(0, picture.y - height / 2 + 2)
        width: Math.max(height, number.implicitWidth + 7)
        height: 18
        radius: 9
        color: Theme.window
        Rectangle {
            anchors.fill: parent
            anchors.margins: 1.5
            radius: height / 2
            color: Theme.tint(root.row.issues > 0 ? Tone.Issue : Tone.LookAt).solid
        }
        Digits {
            id: number
            anchors.centerIn: parent
            text: root.row.issues > 0 ? root.row.issues : root.row.open
            size: 9.5
            weight: Font.Bold
            color: Theme.onSolid
        }
    }
    FocusRing {
        around: 9
        visible: root.focused
    }
    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.clicked()
    }
}
