pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The title over a section of files. It stays at the top of the list while its rows pass under it.
Item {
    id: root

    required property string section

    implicitHeight: Theme.listTitle

    Accessible.role: Accessible.Heading
    Accessible.name: root.section

    Rectangle {
        width: parent.width
        // What lies below is the room for the first row's focus ring.
        height: parent.height - 4
        color: Theme.sidebar
    }
    Label {
        x: 10
        y: 12
        spoken: false
        text: root.section.toUpperCase()
        size: 11
        weight: Font.Bold
        tracking: 0.5
        color: Theme.secondary
    }
}
