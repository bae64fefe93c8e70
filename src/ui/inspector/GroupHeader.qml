pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Over the cards of one kind: "Words · vs what we sent".
Row {
    id: root

    required property string title
    required property string reference

    Accessible.role: Accessible.Heading
    Accessible.name: root.title + " · " + root.reference

    Label {
        text: root.title
        size: 12
        weight: Font.DemiBold
        spoken: false
    }
    Label {
        text: " · " + root.reference
        size: 12
        weight: Font.Medium
        color: Theme.secondary
        spoken: false
    }
}
