pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// The title over a section of files. It stays at the top of the list while its rows pass under it.
Rectangle {
    id: root

    required property string section

    height: label.implicitHeight + 16
    color: Theme.sidebar

    Accessible.role: Accessible.Heading
    Accessible.name: root.section

    Label {
        id: label
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
