pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Stands over the findings of a page whose words had to be read from its picture.
Rectangle {
    id: root

    implicitHeight: words.height + 24
    radius: 12
    color: Theme.soft

    Label {
        id: words
        x: 12
        y: 12
        width: parent.width - 24
        text: "This page has no live text, so its words were read from the picture. Check them by eye."
        size: 11.5
        lineHeight: 16
        lineHeightMode: Text.FixedHeight
        wrapMode: Text.Wrap
        color: Theme.secondary
    }
}
