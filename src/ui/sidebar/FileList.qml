import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// The board's files in their sections of the review.
FocusScope {
    id: root

    required property FileListState state

    ListView {
        id: list
        objectName: "files"
        anchors.fill: parent
        visible: !root.state.empty
        clip: true
        focus: true
        activeFocusOnTab: true
        // The keys are seen to below: where they lead, the title that stays at the top of the list covers nothing.
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        leftMargin: 8
        rightMargin: 8
        bottomMargin: 10
        boundsBehavior: Flickable.StopAtBounds
        model: root.state.rows
        cacheBuffer: 400

        Accessible.role: Accessible.List
        Accessible.name: "Files"

        Keys.onReturnPressed: pick(false)
        Keys.onEnterPressed: pick(false)
        Keys.onSpacePressed: event => pick((event.modifiers & Qt.ControlModifier) !== 0)
        Keys.onPressed: event => {
            const step = leap(event.key);
            if (step === 0 || count === 0)
                return;
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + step));
            showCurrent();
            event.accepted = true;
        }

        // How many rows a key goes.
        function leap(key: int): int {
            const page = currentItem ? Math.max(1, Math.floor((height - Theme.listTitle) / currentItem.height)) : 1;
            switch (key) {
            case Qt.Key_Up:
                return -1;
            case Qt.Key_Down:
                return 1;
            case Qt.Key_Home:
                return -count;
            case Qt.Key_End:
                return count;
            case Qt.Key_PageUp:
                return -page;
            case Qt.Key_PageDown:
                return page;
            }
            return 0;
        }
        // Scrolls as little as shows the current row whole.
        function showCurrent() {
            positionViewAtIndex(currentIndex, ListView.Contain);
            forceLayout(); // or the title before a row that was not there a moment ago has no room yet
            const top = currentItem ? currentItem.y : contentY + Theme.listTitle;
            if (top < contentY + Theme.listTitle)
                contentY = Math.max(originY, top - Theme.listTitle);
        }

        // A row that is selected comes into view; whoever scrolls away from it stays there, whatever the board brings.
        function showChosen() {
            const row = root.state.chosenRow();
            if (row < 0)
                return;
            currentIndex = row;
            showCurrent();
        }
        property bool touched: false
        onMovementStarted: touched = true
        onHeightChanged: {
            if (!touched) {
                positionViewAtBeginning();
                showChosen();
            }
        }
        Connections {
            target: root.state
            function onChosen() {
                list.showChosen();
            }
        }

        function pick(additive: bool) {
            const place = currentItem as FilePlace;
            if (place)
                Store.selectFile(place.row.key, additive);
        }

        section.property: "section"
        section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
        section.delegate: SectionHeader {
            width: ListView.view.width - 16
        }
        delegate: FilePlace {}
    }
    Column {
        anchors.centerIn: parent
        visible: root.state.empty
        spacing: 3
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Nothing to review."
            size: 14
            weight: Font.DemiBold
        }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Press Sync to check supplier mail."
            size: 12
            color: Theme.secondary
        }
    }
}
