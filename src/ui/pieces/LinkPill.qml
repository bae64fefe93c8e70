pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A pill that leads out of the program. Without a link it is dimmed, says so and does nothing.
Pill {
    id: root

    property string url: ""
    readonly property bool found: root.url.length > 0

    /// The link wants to be opened with whatever the desktop opens such links with.
    signal opened(url: string)

    opacity: root.found ? 1 : Theme.withoutLink
    hoverWash: root.found ? Theme.pillHoverWash : Theme.pillWash
    scale: root.pressed && root.found ? Theme.pressedScale : 1
    help: root.found ? "" : "Not found"
    Accessible.role: Accessible.Link
    onClicked: {
        if (root.found)
            root.opened(root.url);
    }
}
