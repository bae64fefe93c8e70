pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A rule between two sections, and the room around it.
Item {
    id: root

    property int above: 14
    property int below: 14

    implicitHeight: root.above + root.below

    Rule {
        y: root.above
        width: parent.width
    }
}
