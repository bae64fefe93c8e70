pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// What a section of the inspector is about.
Label {
    required property string title

    text: title.toUpperCase()
    topPadding: 4
    bottomPadding: 4
    size: 12
    weight: Font.Bold
    tracking: 0.5
    color: Theme.secondary
    Accessible.role: Accessible.Heading
    Accessible.name: title
}
