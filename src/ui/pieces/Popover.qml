pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A panel that a button opened and that stands above it, an arrow pointing at the button. While it is open it has the
/// keyboard; Escape or a press anywhere else asks for its end.
FocusScope {
    id: root

    property bool open: false
    /// The button: a press on it closes the panel and does nothing else.
    required property Item opener
    /// How far from the panel's leading side the arrow points.
    required property real arrowAt
    readonly property int arrowHeight: 9

    default property alias content: panel.data

    signal dismissed

    property Item before: null
    property real grown: root.open ? 1 : 0.97

    visible: root.opacity > 0
    enabled: false
    opacity: root.open ? 1 : 0

    Accessible.role: Accessible.Pane

    Behavior on opacity {
        StandardFade {}
    }
    Behavior on grown {
        StandardMove {}
    }
    transform: Scale {
        origin.x: root.arrowAt
        origin.y: root.height + root.arrowHeight
        xScale: root.grown
        yScale: root.grown
    }

    // Its own Escape, before that of the window.
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
    Keys.onEscapePressed: root.dismissed()
    onOpenChanged: root.settle()
    Component.onCompleted: root.settle()

    function settle() {
        if (root.open && !root.enabled) {
            root.before = root.Window.activeFocusItem;
            root.enabled = true;
            root.forceActiveFocus();
        } else if (!root.open && root.enabled) {
            if (root.activeFocus && root.before)
                root.before.forceActiveFocus();
            root.enabled = false;
        }
    }

    OnAction {
        action: root.open ? Actions.close : null
        onTriggered: root.dismissed()
    }
    // Above everything, it sees each press first; what is not meant for the opener goes on to where it was aimed.
    MouseArea {
        parent: root.Window.contentItem
        anchors.fill: parent
        enabled: root.open
        acceptedButtons: Qt.AllButtons
        onPressed: mouse => {
            const holds = item => item.contains(mapToItem(item, mouse.x, mouse.y));
            mouse.accepted = holds(root.opener);
            if (!holds(root))
                root.dismissed();
        }
    }
    Floating {
        anchors.fill: parent
        radius: 12
    }
    Beak {
        x: Math.round(root.arrowAt - width / 2)
        y: root.height - line
        width: 18
        height: root.arrowHeight + line
        color: Theme.card
        outline: Theme.hair
        line: 1 / Screen.devicePixelRatio
    }
    // Nothing that lies under the panel feels the pointer.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onWheel: wheel => wheel.accepted = true
    }
    Item {
        id: panel
        anchors.fill: parent
    }
}
