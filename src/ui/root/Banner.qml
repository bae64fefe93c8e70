pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A strip across the head of the detail column. It comes and goes with what it tells.
Item {
    id: root

    /// There is something to tell.
    required property bool shown
    required property int padding
    required property color color
    required property real wash
    default property alias content: row.data

    implicitHeight: row.implicitHeight + 2 * root.padding + 1
    height: root.shown ? root.implicitHeight : 0
    opacity: root.shown ? 1 : 0
    visible: height > 0
    clip: true

    Behavior on height {
        StandardMove {}
    }
    Behavior on opacity {
        StandardFade {}
    }

    Rectangle {
        anchors.fill: parent
        color: root.color
        opacity: root.wash
    }
    Item {
        id: row
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        y: root.padding
        implicitHeight: 18
    }
    Rule {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
