pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Where hints are drawn: it fills the window, lies above everything else and catches nothing.
Item {
    id: root

    readonly property int margin: 8
    readonly property int distance: 7
    property Item target: Hints.target && Hints.target.Window.window === root.Window.window ? Hints.target : null

    anchors.fill: parent
    onTargetChanged: {
        if (root.target)
            root.place();
    }

    /// Under the target and centred on it, or above it where there is no room below; never outside the window.
    function place() {
        const at = root.target.mapToItem(root, 0, 0);
        const middle = at.x + (root.target.width - panel.width) / 2;
        const below = at.y + root.target.height + root.distance;
        const fits = below + panel.height <= root.height - root.margin;
        panel.x = Math.round(Math.max(root.margin, Math.min(middle, root.width - panel.width - root.margin)));
        panel.y = Math.round(fits ? below : at.y - panel.height - root.distance);
    }

    Rectangle {
        id: panel
        objectName: "panel"
        visible: opacity > 0
        opacity: root.target ? 1 : 0
        width: Math.ceil(words.width) + 16
        height: Math.ceil(words.height) + 8
        radius: 6
        color: Theme.toast
        border.width: 1
        border.color: Theme.toastRing

        Behavior on opacity {
            StandardFade {}
        }
        Label {
            id: words
            x: 8
            y: 4
            // The words stay while the panel fades.
            property string last: ""
            text: Hints.text.length > 0 ? Hints.text : last
            onTextChanged: last = text
            width: Math.min(implicitWidth, 280)
            wrapMode: Text.Wrap
            maximumLineCount: 8
            size: 11.5
            color: Theme.toastText
            spoken: false
        }
    }
}
