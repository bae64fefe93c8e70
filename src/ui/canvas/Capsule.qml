pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A few words that lie on a page: dark on any paper.
Rectangle {
    id: root

    required property string icon
    required property string text

    width: Math.ceil(words.width) + 22
    height: 24
    radius: 12
    color: Theme.toast
    border.width: 1
    border.color: Theme.toastRing

    Row {
        id: words
        anchors.centerIn: parent
        spacing: 5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.icon
            size: 12
            color: Theme.toastText
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: 11.5
            weight: Font.DemiBold
            color: Theme.toastText
            spoken: false
        }
    }
}
