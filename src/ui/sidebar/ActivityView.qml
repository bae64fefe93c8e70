pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// What happened on the board, in a panel above the button that opened it.
Popover {
    id: root

    /// When the window goes it may go first.
    required property ActivityState state
    readonly property bool empty: root.state?.empty ?? true
    /// How high the panel may become.
    property real mostHeight: 560

    // The lines end above the round corners.
    readonly property int foot: 8
    readonly property real listHeight: root.empty ? nothing.height : list.contentHeight

    width: 330
    height: Math.min(root.mostHeight, Math.round(title.height + root.listHeight + root.foot))

    Accessible.name: "Activity"
    onOpenChanged: list.currentIndex = -1

    Item {
        id: title
        width: parent.width
        height: 14 + 24 + 8
        Label {
            x: 16
            y: 14
            height: 24
            text: "Activity"
            size: 20
            weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
    }
    Label {
        id: nothing
        visible: root.empty
        anchors.top: title.bottom
        x: 16
        height: 17 + 8
        text: "Nothing has happened yet."
        size: 12.5
        color: Theme.secondary
    }
    ListView {
        id: list
        anchors.top: title.bottom
        width: parent.width
        height: root.height - title.height - root.foot
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        currentIndex: -1
        reuseItems: true
        model: root.state?.rows ?? null

        Accessible.role: Accessible.List
        Accessible.name: "Activity"

        Keys.onReturnPressed: root.state.follow(list.currentIndex)
        Keys.onEnterPressed: root.state.follow(list.currentIndex)
        Keys.onSpacePressed: root.state.follow(list.currentIndex)

        delegate: ActivityLine {
            id: line
            required property int index
            width: ListView.view.width
            current: ListView.isCurrentItem && ListView.view.activeFocus
            onFollowed: root.state.follow(line.index)
        }
    }
}
