pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A person: the initials, or a question mark for somebody who is not known.
Item {
    id: root

    property string email: ""
    property string name: ""
    property real size: 22
    /// A thin ring around the circle, and a dot at its lower trailing corner: the person is here.
    property bool ring: false
    property bool dot: false
    /// What the dot is cut out of.
    property color ground: Theme.sidebar
    property string help: ""
    /// Blob key of the photo; empty without one.
    property string photo: ""

    /// The colour that the board has for the person; empty without one.
    property string color: ""

    readonly property string letters: Faces.initials(root.name)
    readonly property bool known: root.email.length > 0 && root.letters.length > 0

    implicitWidth: root.size
    implicitHeight: root.size

    Accessible.role: Accessible.Graphic
    Accessible.name: root.known ? root.name : "?"
    Accessible.description: root.help

    Rectangle {
        objectName: "ring"
        visible: root.ring
        anchors.fill: parent
        anchors.margins: -3
        radius: width / 2
        color: "transparent"
        border.width: 1.5
        border.pixelAligned: false
        border.color: Theme.reviewed.plain
    }
    Rectangle {
        anchors.fill: parent
        visible: !picture.hasPicture
        radius: width / 2
        color: root.known ? Faces.colour(root.email, root.color) : Theme.pressed
        Label {
            objectName: "text"
            anchors.centerIn: parent
            text: root.known ? root.letters : "?"
            size: 0.42 * root.size
            weight: Font.DemiBold
            color: root.known ? Theme.onSolid : Theme.tertiary
            spoken: false
        }
    }
    RemoteImage {
        id: picture
        anchors.fill: parent
        key: root.photo
        fill: true
        radius: root.size / 2
    }
    Rectangle {
        objectName: "dot"
        visible: root.dot
        x: root.width - width + 3 + 1.5
        y: root.height - height + 3 + 1.5
        width: 11
        height: 11
        radius: 5.5
        color: root.ground
        Rectangle {
            anchors.centerIn: parent
            width: 8
            height: 8
            radius: 4
            color: Theme.reviewed.plain
        }
    }
    Hint {
        text: root.help
    }
}
