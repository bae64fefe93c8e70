pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A number in digits of one width, so that it does not jump as it counts.
Row {
    id: root

    property string text: ""
    property real size: 11
    property int weight: Font.Normal
    property color color: Theme.text

    TextMetrics {
        id: widest
        font: Appearance.face(root.size, root.weight, 0)
        text: "0"
    }
    Repeater {
        model: root.text.length
        Label {
            required property int index
            width: widest.advanceWidth
            horizontalAlignment: Text.AlignHCenter
            elide: Text.ElideNone
            text: root.text.charAt(index)
            size: root.size
            weight: root.weight
            color: root.color
            spoken: false
        }
    }
}
