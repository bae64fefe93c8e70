pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// The mark at the end of a file's row: how much is left to do, or that nothing is.
Item {
    id: root

    required property fileRowCount count
    /// It lies on the ground of a selected row.
    required property bool overChosen
    readonly property bool numbered: root.count.number !== ""

    implicitWidth: root.numbered ? badge.width : symbol.width
    implicitHeight: root.numbered ? badge.height : symbol.height

    Rectangle {
        id: badge
        visible: root.numbered
        width: Math.max(height, digits.implicitWidth + 12)
        height: digits.implicitHeight + 3
        radius: height / 2
        color: Theme.tint(root.count.tone).solid
        Digits {
            id: digits
            anchors.centerIn: parent
            text: root.count.number
            size: 11
            weight: Font.Bold
            color: Theme.onSolid
        }
    }
    Symbol {
        id: symbol
        visible: !root.numbered
        name: root.count.symbol
        size: 13
        color: root.count.tone === Tone.Reviewed ? Theme.tint(root.count.tone).plain : root.overChosen ? Theme.chosenText : Theme.secondary
    }
    Hint {
        text: root.count.help
    }
}
