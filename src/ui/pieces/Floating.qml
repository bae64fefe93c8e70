pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A panel that lies above the window and casts a shadow on it.
Item {
    id: root

    property real radius: 12
    property color color: Theme.card
    property color outline: Theme.hair

    Shadow {
        anchors.fill: parent
        radius: root.radius
        drop: Theme.dark ? 10 : 8
        blur: Theme.dark ? 34 : 28
        color: Theme.shadow
    }
    Outlined {
        anchors.fill: parent
        radius: root.radius
        color: root.color
        border.color: root.outline
    }
}
