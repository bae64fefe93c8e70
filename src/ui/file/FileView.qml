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
    /// What is found and noted on the page. It outlives the view: the cards go a moment after the rest.
    required property InspectorState page
    /// What lies around the pages stands too: in a new window it follows the first frame, which is theirs.
    property bool complete: false

    Component.onCompleted: root.complete = root.Window.window?.visible ?? false
    Connections {
        target: root.Window.window
        enabled: !root.complete
        function onFrameSwapped() {
            root.complete = true;
        }
    }
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
    When {
        active: root.state.loading && root.state.problem.length === 0
        LoadingPage {
            x: compare.x
            y: compare.y
            width: compare.width
            height: compare.height
            thumb: root.state.thumbs.length > 0 ? root.state.thumbs[0] : ""
        }
    }
    FileProblem {
        anchors.centerIn: compare
        visible: root.state.problem.length > 0
        state: root.state
    }
    Item {
        id: strip
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: beside.left
        height: 96

        When {
            active: root.complete
            PageStrip {
                width: strip.width
                height: strip.height
                state: root.state
            }
        }
    }
    Rule {
        id: beside
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        anchors.right: inspector.left
        upright: true
    }
    Rectangle {
        id: inspector
        anchors.top: rule.bottom
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        width: 330
        color: Theme.window

        When {
            active: root.complete
            Inspector {
                width: inspector.width
                height: inspector.height
                state: root.page
            }
        }
    }
    CanvasState {
        id: canvas
        store: Store
    }
}
