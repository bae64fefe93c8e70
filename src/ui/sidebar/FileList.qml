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
        keyNavigationEnabled: true
        leftMargin: 8
        rightMargin: 8
        bottomMargin: 10
        boundsBehavior: Flickable.StopAtBounds
        model: root.state.rows
        cacheBuffer: 400

        Accessible.role: Accessible.List
        Accessible.name: "Files"

        Keys.onReturnPressed: pick()
        Keys.onSpacePressed: pick()

        // A row that is selected comes into view; whoever scrolls away from it stays there, whatever the board brings.
        function showChosen() {
            const row = root.state.chosenRow();
            if (row >= 0)
                positionViewAtIndex(row, ListView.Contain);
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

        function pick() {
            const place = currentItem as FilePlace;
            if (place)
                Store.selectFile(place.row.key, false);
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
