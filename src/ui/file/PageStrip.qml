pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.File

/// The file's pages in a row, the one on the canvas always in view.
Rectangle {
    id: root

    required property FileState state

    implicitHeight: 96
    color: Theme.window

    Rule {
        width: parent.width
    }
    ListView {
        id: list
        objectName: "list"
        anchors.fill: parent
        anchors.topMargin: 1
        orientation: ListView.Horizontal
        leftMargin: 14
        rightMargin: 14
        spacing: 2
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        cacheBuffer: 240
        model: root.state.pages

        // The list moves its own index as pages come and go: it is told anew each time.
        function follow() {
            currentIndex = root.state.page;
        }
        onCountChanged: follow()
        onCurrentIndexChanged: follow()
        Component.onCompleted: follow()
        Connections {
            target: root.state
            function onPageChanged() {
                list.follow();
            }
        }

        // The current page's neighbours stay in view as well, so that one sees where one goes.
        highlightRangeMode: ListView.ApplyRange
        preferredHighlightBegin: 60
        preferredHighlightEnd: width - 60
        highlightMoveDuration: Theme.move
        highlightFollowsCurrentItem: true
        keyNavigationEnabled: false

        Accessible.role: Accessible.List
        Accessible.name: "Pages"

        Keys.onLeftPressed: root.state.turnTo(Math.max(0, root.state.page - 1))
        Keys.onRightPressed: root.state.turnTo(Math.min(list.count - 1, root.state.page + 1))
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                root.state.turnTo(event.key === Qt.Key_Home ? 0 : list.count - 1);
        }

        delegate: PageCell {
            y: 8
            current: index === root.state.page
            focused: current && list.activeFocus
            onClicked: root.state.turnTo(index)
        }
        WheelHandler {
            acceptedDevices: PointerDevice.Mouse
            orientation: Qt.Vertical
            onWheel: event => list.flick(event.angleDelta.y * 6, 0)
        }
    }
}
