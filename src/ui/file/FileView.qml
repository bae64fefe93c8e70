pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File
import Vexal.Canvas

/// The one selected file: what it is, above the canvas on which its pages are compared.
FocusScope {
    id: root

    required property FileState state

    FileHeader {
        id: header
        width: parent.width
        header: root.state.header
    }
    Rule {
        id: rule
        anchors.top: header.bottom
        width: parent.width
    }
    CompareCanvas {
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        focus: true
        state: canvas
    }
    CanvasState {
        id: canvas
        store: Store
    }
}
