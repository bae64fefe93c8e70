pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Stands where our page would, when there is none to compare with.
Item {
    id: root

    required property string heading

    Accessible.role: Accessible.StaticText
    Accessible.name: root.heading
    Accessible.description: line.text

    DashedFrame {
        anchors.fill: parent
        color: Theme.hair2
    }
    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 24, 260)
        spacing: 6
        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "doc.questionmark"
            size: 28
            color: Theme.tertiary
        }
        Item {
            width: 1
            height: 4
        }
        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            spoken: false
            text: root.heading
            size: 13
            weight: Font.DemiBold
        }
        Label {
            id: line
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            spoken: false
            text: "The sync couldn't find one to compare with."
            size: 11.5
            color: Theme.secondary
        }
    }
}
