pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// The column beside the canvas: what was found on the page that shows, the judgement of it, and what people note.
FocusScope {
    id: root

    required property InspectorState state
    readonly property pageReview review: root.state.review
    /// The settled findings are unfolded.
    property bool showExpected: false
    readonly property string file: root.state.file
    /// What has the keyboard, in here.
    readonly property Item keyboard: root.activeFocus ? root.Window.activeFocusItem : null
    /// The card that is being brought into view, until the column has come to rest around it.
    property Item wanted: null

    Accessible.role: Accessible.Pane
    Accessible.name: "Inspector"

    onFileChanged: root.showExpected = false
    // The keyboard never goes where nothing shows.
    onKeyboardChanged: {
        if (root.keyboard && root.keyboard !== root)
            root.reveal(root.keyboard);
    }

    /// Scrolls as little as shows the item whole. What is larger than the column stays where it is in sight.
    function reveal(item: Item) {
        const top = item.mapToItem(sheet, 0, 0).y - 12;
        const bottom = top + item.height + 24;
        const inSight = top < view.contentY + view.height && bottom > view.contentY;
        if (bottom - top > view.height && inSight)
            return;
        const furthest = Math.max(0, view.contentHeight - view.height);
        if (bottom > view.contentY + view.height)
            view.contentY = Math.min(bottom - view.height, furthest);
        if (top < view.contentY)
            view.contentY = Math.max(0, Math.min(top, furthest));
    }
    /// Brings the card of the finding that got the focus into view, unfolded where it is a settled one.
    function showFocused() {
        const settledAt = root.state.settledCardOf(Store.focus);
        if (settledAt >= 0)
            root.showExpected = true;
        root.wanted = settledAt >= 0 ? settled.placeAt(settledAt) : cards.placeAt(root.state.cardOf(Store.focus));
        if (!root.wanted)
            return;
        root.reveal(root.wanted);
        rest.restart();
    }

    Timer {
        id: rest
        interval: Theme.standard + 100
        onTriggered: root.wanted = null
    }
    Connections {
        target: root.state
        function onFocusMoved() {
            root.showFocused();
        }
        function onNoteBegun() {
            composer.write();
        }
        function onPlaceChanged() {
            view.contentY = 0;
        }
        function onTurned() {
            composer.goOn();
        }
        // Whoever scrolled away from what they write comes back as they go on.
        function onWritten() {
            if (root.keyboard)
                root.reveal(root.keyboard);
        }
    }

    Flickable {
        id: view
        objectName: "column"
        anchors.fill: parent
        contentHeight: sheet.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        onContentHeightChanged: {
            if (root.wanted)
                root.reveal(root.wanted);
        }
        onMovementStarted: root.wanted = null

        Column {
            id: sheet
            x: 16
            width: view.width - 32
            visible: root.state.ready
            topPadding: 16
            bottomPadding: 16

            Column {
                width: parent.width
                visible: root.state.hasPage

                PageHeading {
                    width: parent.width
                    review: root.review
                }
                Divider {
                    width: parent.width
                    above: 12
                }
                ReadFromPicture {
                    objectName: "notice"
                    width: parent.width
                    visible: root.review.readFromPicture
                }
                Item {
                    width: 1
                    height: 14
                    visible: root.review.readFromPicture
                }
                NothingFound {
                    width: parent.width
                    visible: root.review.empty
                    line: root.review.emptyLine
                }
                CardColumn {
                    id: cards
                    width: parent.width
                    state: root.state
                    model: root.state.cards
                    view: view
                }
                Divider {
                    width: parent.width
                    visible: settled.visible && cards.count > 0
                    below: 7
                }
                Settled {
                    id: settled
                    width: parent.width
                    visible: root.review.summary.length > 0
                    state: root.state
                    summary: root.review.summary
                    view: view
                    open: root.showExpected
                    onToggled: root.showExpected = !root.showExpected
                }
                Divider {
                    width: parent.width
                    above: settled.visible ? 7 : 14
                    below: 12
                }
            }
            SectionTitle {
                title: "Notes"
            }
            Label {
                visible: notes.count === 0
                topPadding: 2
                text: "No notes on this page yet."
                size: 12.5
                color: Theme.secondary
            }
            NoteList {
                id: notes
                width: parent.width
                topPadding: 4
                bottomPadding: 8
                state: root.state
                model: root.state.notes
            }
            Composer {
                id: composer
                x: -12
                width: parent.width + 24
                visible: root.state.hasPage
                view: root.state.composer
                text: root.state.noteText
                onTyped: text => root.state.noteText = text
                onPosted: root.state.post()
                onCleared: Store.clearDraft()
                onHeightChanged: {
                    if (composer.activeFocus)
                        root.reveal(composer);
                }
            }
            OtherPages {
                width: parent.width
                state: root.state
            }
        }
    }
}
