pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// An action in the program's menu, with the heading of its section above the first of them. What is in no section is
/// not in the menu.
Item {
    id: root

    required property Action modelData
    required property int index
    /// The section of the action before it.
    required property string before
    /// The keyboard or the pointer is on it.
    required property bool current
    /// It stands in the menu, and somebody answers.
    readonly property bool choosable: root.modelData.enabled && root.modelData.section.length > 0
    readonly property bool first: root.before !== root.modelData.section
    readonly property int above: !root.first ? 0 : root.index === 0 ? 24 : 33
    readonly property alias least: row.least

    signal pointed
    signal unpointed
    signal chosen

    visible: root.modelData.section.length > 0
    height: root.modelData.section.length > 0 ? root.above + row.height : 0

    Rule {
        visible: root.first && root.index > 0
        x: 10
        y: 4
        width: parent.width - 20
    }
    Label {
        visible: root.first
        x: 10
        y: root.above - 19
        text: root.modelData.section
        size: 11
        weight: Font.DemiBold
        color: Theme.tertiary
        Accessible.role: Accessible.Heading
    }
    MenuRow {
        id: row
        objectName: root.modelData.name
        y: root.above
        width: parent.width
        enabled: root.modelData.enabled
        title: root.modelData.name
        keys: root.modelData.sequences.length > 0 ? root.modelData.sequences[0] : ""
        checked: root.modelData.checked
        current: root.current
        indent: 28
        onPointed: root.pointed()
        onUnpointed: root.unpointed()
        onChosen: root.chosen()
    }
}
