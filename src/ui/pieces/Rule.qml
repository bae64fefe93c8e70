pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A hairline: one device pixel at every scale. It lies across its parent, or stands in it when `upright`.
Rectangle {
    id: root

    property bool upright: false
    readonly property real hairline: 1 / Screen.devicePixelRatio

    implicitWidth: root.hairline
    implicitHeight: root.hairline
    color: Theme.hair
}
