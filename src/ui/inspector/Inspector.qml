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

    Accessible.role: Accessible.Pane
    Accessible.name: "Inspector"

    onFileChanged: root.showExpected = false

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
    function cardAt(list: Repeater, index: int): Item {
        const place = list.itemAt(index) as FindingPlace;
        return place ? place.card : null;
    }
    function step(list: Repeater, index: int) {
        const card = root.cardAt(list, index);
        if (card)
            card.forceActiveFocus(Qt.TabFocusReason);
    }
    /// Brings the card of the finding that got the focus into view, unfolded where it is a settled one. Until the column
    /// has come to rest around it, it is kept there.
    function showFocused() {
        const settledAt = root.state.settledCardOf(Store.focus);
        if (settledAt >= 0)
            root.showExpected = true;
        root.wanted = settledAt >= 0 ? root.cardAt(settled, settledAt) : root.cardAt(cards, root.state.cardOf(Store.focus));
        if (!root.wanted)
            return;
        root.reveal(root.wanted);
        rest.restart();
    }
    property Item wanted: null

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
    }
    // The keyboard never goes where nothing shows.
    readonly property Item keyboard: root.activeFocus ? root.Window.activeFocusItem : null
    onKeyboardChanged: {
        if (root.keyboard && root.keyboard !== root)
            root.reveal(root.keyboard);
    }

    Flickable {
        id: view
        anchors.fill: parent
        contentHeight: sheet.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        onContentHeightChanged: {
            if (root.wanted)
                root.reveal(root.wanted);
        }

        Column {
            id: sheet
            x: 16
            width: view.width - 32
            visible: root.state.ready
            topPadding: 16
            bottomPadding: 16

            component Divider: Item {
                property int above: 14
                property int below: 14
                width: sheet.width
                height: above + below
                Rule {
                    y: parent.above
                    width: parent.width
                }
            }

            Column {
                width: parent.width
                visible: root.state.hasPage

                Row {
                    spacing: 8
                    Label {
                        id: title
                        width: Math.min(implicitWidth, sheet.width - found.width - 8)
                        text: root.review.title
                        size: 21
                        weight: Font.DemiBold
                        Accessible.role: Accessible.Heading
                    }
                    Label {
                        id: found
                        anchors.baseline: title.baseline
                        text: root.review.found
                        size: 12
                        weight: Font.DemiBold
                        color: Theme.secondary
                    }
                }
                Divider {
                    above: 12
                }
                When {
                    active: root.review.readFromPicture
                    Item {
                        width: sheet.width
                        height: notice.height + 14
                        Rectangle {
                            id: notice
                            objectName: "notice"
                            width: parent.width
                            height: words.height + 24
                            radius: 12
                            color: Theme.soft
                            Label {
                                id: words
                                x: 12
                                y: 12
                                width: parent.width - 24
                                text: "This page has no live text, so its words were read from the picture. Check them by eye."
                                size: 11.5
                                lineHeight: 16
                                lineHeightMode: Text.FixedHeight
                                wrapMode: Text.Wrap
                                color: Theme.secondary
                            }
                        }
                    }
                }
                When {
                    active: root.review.empty
                    Column {
                        width: sheet.width
                        spacing: 3
                        Label {
                            width: parent.width
                            text: "Nothing different here."
                            size: 14
                            weight: Font.DemiBold
                        }
                        Label {
                            width: parent.width
                            text: root.review.emptyLine
                            size: 12.5
                            lineHeight: 17
                            lineHeightMode: Text.FixedHeight
                            wrapMode: Text.Wrap
                            color: Theme.secondary
                        }
                    }
                }
                Column {
                    width: parent.width
                    spacing: 8
                    Accessible.role: Accessible.List
                    Accessible.name: "Findings"
                    Repeater {
                        id: cards
                        model: root.state.cards
                        FindingPlace {
                            id: place
                            width: sheet.width
                            state: root.state
                            onStepped: by => root.step(cards, place.index + by)
                        }
                    }
                }
                Divider {
                    visible: root.review.summary.length > 0 && cards.count > 0
                    below: 7
                }
                FoldLine {
                    width: parent.width
                    visible: root.review.summary.length > 0
                    text: root.review.summary
                    open: root.showExpected
                    onClicked: root.showExpected = !root.showExpected
                }
                Item {
                    id: fold
                    width: parent.width
                    height: root.showExpected && settled.count > 0 ? folded.height + 8 : 0
                    visible: height > 0
                    opacity: root.showExpected ? 1 : 0
                    clip: height !== folded.height + 8
                    Behavior on height {
                        StandardMove {}
                    }
                    Behavior on opacity {
                        StandardFade {}
                    }
                    Column {
                        id: folded
                        y: 8
                        width: parent.width
                        spacing: 8
                        Repeater {
                            id: settled
                            model: root.state.settled
                            FindingPlace {
                                id: compactPlace
                                width: sheet.width
                                state: root.state
                                compact: true
                                onStepped: by => root.step(settled, compactPlace.index + by)
                            }
                        }
                    }
                }
                Divider {
                    above: root.review.summary.length > 0 ? 7 : 14
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
                state: root.state
                model: root.state.notes
            }
            Item {
                width: parent.width
                height: 8
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
            Column {
                width: parent.width
                visible: others.count > 0
                Divider {
                    above: 2
                    below: 12
                }
                SectionTitle {
                    title: "Still open on other pages"
                }
                Repeater {
                    id: others
                    model: root.state.others
                    OtherPageRow {
                        width: sheet.width
                        onClicked: Store.turnPage(root.file, row.index)
                    }
                }
            }
        }
    }
}
