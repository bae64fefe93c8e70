pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Root

/// What the window is resized by: its four edges and four corners.
Item {
    id: root

    readonly property int thickness: 4
    readonly property int corner: 8

    anchors.fill: parent
    enabled: root.Window.visibility === Window.Windowed

    component Side: WindowHandle {
        y: root.corner
        width: root.thickness
        height: root.height - 2 * root.corner
    }
    component Bar: WindowHandle {
        x: root.corner
        width: root.width - 2 * root.corner
        height: root.thickness
    }
    component Corner: WindowHandle {
        width: root.corner
        height: root.corner
    }

    Side {
        edges: Qt.LeftEdge
    }
    Side {
        x: root.width - width
        edges: Qt.RightEdge
    }
    Bar {
        edges: Qt.TopEdge
    }
    Bar {
        y: root.height - height
        edges: Qt.BottomEdge
    }
    Corner {
        edges: Qt.TopEdge | Qt.LeftEdge
    }
    Corner {
        x: root.width - width
        edges: Qt.TopEdge | Qt.RightEdge
    }
    Corner {
        y: root.height - height
        edges: Qt.BottomEdge | Qt.LeftEdge
    }
    Corner {
        x: root.width - width
        y: root.height - height
        edges: Qt.BottomEdge | Qt.RightEdge
    }
}
