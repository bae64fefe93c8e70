pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Closes, minimises and zooms the window, at its leading upper corner.
Row {
    id: root

    // In a photograph the window is always the one that is worked in.
    readonly property bool active: root.Window.active || Theme.resting

    signal zoomRequested

    x: 12
    y: 8

    HoverHandler {
        id: pointer
    }
    component Choice: WindowButton {
        near: pointer.hovered
        active: root.active
    }
    Choice {
        objectName: "close"
        name: "Close"
        sign: WindowGlyph.Close
        onClicked: root.Window.window.close()
    }
    Choice {
        objectName: "minimise"
        name: "Minimise"
        sign: WindowGlyph.Minimise
        onClicked: root.Window.window.showMinimized()
    }
    Choice {
        objectName: "zoom"
        name: "Zoom"
        sign: WindowGlyph.Zoom
        onClicked: root.zoomRequested()
    }
}
