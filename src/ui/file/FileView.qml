pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File
import Vexal.Canvas
import Vexal.Inspector

/// The one selected file: what it is, above the canvas on which its pages are compared, all its pages below, and what is
/// said of the page beside.
FocusScope {
    id: root

    required property FileState state

    FileHeader {
        id: header
        width: parent.width
        state: root.state
    }
    Rule {
        id: rule
        anchors.top: header.bottom
        width: parent.width
    }
    CompareCanvas {
        id: compare
        anchors.top: rule.bottom
        anchors.bottom: strip.top
        anchors.left: parent.left
        anchors.right: beside.left
        focus: true
        state: canvas
    }
    FileProblem {
        anchors.centerIn: compare
        visible: root.state.problem.length > 0
        state: root.state
    }
    PageStrip {
        id: strip
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: beside.left
        state: root.state
    }
    Rule {
        id: beside
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        anchors.right: inspector.left
        upright: true
    }
    Inspector {
        id: inspector
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        width: 330
        state: page
    }
    CanvasState {
        id: canvas
        store: Store
    }
    InspectorState {
        id: page
        store: Store
        time: PassingTime
        drafts: Drafts
    }
}
