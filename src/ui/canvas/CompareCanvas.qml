pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// The supplier's page beside, under or alternating with the matching page of ours, with the findings marked.
FocusScope {
    id: root

    required property CanvasState state
    readonly property comparison comparison: root.state.comparison
    readonly property bool any: root.comparison.count > 0
    /// The two pages stand side by side: as asked for, or because there is none of ours to lay over.
    readonly property bool beside: Store.mode === Store.Side || !root.comparison.matched
    readonly property bool blinking: Store.mode === Store.Blink && !root.beside
    readonly property bool subtracting: Store.mode === Store.Overlay && !root.beside && blending.difference
    /// How long either page stands while they alternate, in milliseconds.
    readonly property int blinkTime: 700
    readonly property string file: root.state.file
    /// The pages that are to be seen are there.
    readonly property bool shown: supplier.ready && (ours.ready || !ours.visible || ours.missing !== "")
    readonly property alias blending: blending
    readonly property alias blink: blink

    // Nor is anything in here asked about a pointer that is elsewhere.
    clip: true
    onFileChanged: {
        blending.reset();
        zoom.fit();
    }
    onBlinkingChanged: blending.ours = false

    Accessible.role: Accessible.Pane
    Accessible.name: "Compare pages"

    Blending {
        id: blending
    }
    PageZoom {
        id: zoom
        box: desk.box
        page: supplier.page
        pixels: root.comparison.supplier.pixels.width > 0 ? root.comparison.supplier.pixels : supplier.pixels
        devicePixelRatio: Screen.devicePixelRatio
        foot: root.state.closeup.open ? loupe.height + 10 : 0
        mark: root.state.closeup.open ? root.state.closeup.place : Qt.rect(0, 0, -1, -1)
    }
    CanvasActions {
        state: root.state
        zoom: zoom
        box: desk.box
        page: supplier.page
    }
    Timer {
        id: blink
        interval: root.blinkTime
        repeat: true
        running: root.blinking && root.visible && Theme.lively && !Store.pinning
        onTriggered: blending.ours = !blending.ours
    }
    Connections {
        target: Store
        // A pin is placed on the supplier's page, so that is the one to see.
        function onPinningChanged() {
            blending.ours = false;
        }
        // A press on the card of the finding that has the focus.
        function onFocusRenewed() {
            if (root.state.closeup.open)
                zoom.reveal(root.state.closeup.place);
        }
    }
    CanvasBar {
        id: bar
        width: parent.width
        state: root.state
        blending: blending
    }
    Rectangle {
        id: desk
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        color: Theme.canvas
        // A mark never lies over the bar.
        clip: true

        readonly property size box: root.beside ? CanvasGeometry.sideBySideBox(width, height) : CanvasGeometry.singleBox(width, height)
        /// The left button moves the page instead of pressing what is on it.
        property bool holding: false
        /// The keyboard is what the person uses here.
        property bool byKey: false
        readonly property int arrowMove: 48
        /// What the zoom pill takes of the row of labels.
        readonly property real pillRoom: pill.count > 0 ? pill.itemAt(0).width + 12 : 0

        function move(event: var, x: int, y: int) {
            event.accepted = zoom.zoomed;
            desk.byKey = true;
            zoom.moveBy(x * desk.arrowMove, y * desk.arrowMove, supplier.page);
        }

        focus: true
        activeFocusOnTab: root.any
        onActiveFocusChanged: {
            desk.holding = false;
            desk.byKey = desk.activeFocus && desk.byKey;
        }
        Accessible.role: Accessible.Canvas
        Accessible.name: "Pages"
        Accessible.focusable: true
        Keys.onLeftPressed: event => desk.move(event, 1, 0)
        Keys.onRightPressed: event => desk.move(event, -1, 0)
        Keys.onUpPressed: event => desk.move(event, 0, 1)
        Keys.onDownPressed: event => desk.move(event, 0, -1)
        Keys.onSpacePressed: desk.holding = true
        Keys.onReleased: event => {
            if (event.key === Qt.Key_Space && !event.isAutoRepeat)
                desk.holding = false;
        }

        component Hand: PaneHand {
            y: Theme.labelRow
            z: 1
            width: desk.box.width
            height: desk.box.height
            zoom: zoom
            holding: desk.holding
            onUsed: desk.byKey = false
        }

        Pane {
            id: supplier
            x: Theme.canvasSide
            y: Theme.canvasFoot
            visible: root.any
            box: desk.box
            view: root.comparison.supplier
            zoom: zoom
            dot: blending.ours ? Theme.tertiary : Theme.accent.plain
            label: root.beside ? view.label : !root.blinking ? root.comparison.overlayLabel : blending.ours ? root.comparison.ours.label : view.label
            over: root.beside ? "" : root.comparison.ours.key
            overOpacity: root.blinking ? (blending.ours ? 1 : 0) : blending.share
            difference: root.subtracting
            labelEnd: root.beside ? 0 : desk.pillRoom
            onTouched: desk.forceActiveFocus()

            BoxMarks {
                anchors.fill: parent
                // The marks belong to the supplier's page.
                opacity: blending.ours ? 0 : 1
                live: !blending.ours
                state: root.state
                onReached: place => zoom.reveal(place)
            }
            DraftPin {
                visible: Store.hasDraftPin && !blending.ours
                x: Store.draftPin.x * parent.width
                y: Store.draftPin.y * parent.height
            }
            When {
                active: Store.pinning
                PinLayer {
                    anchors.fill: parent
                    seen: supplier.seen
                    onPlaced: place => Store.placePin(place)
                }
            }
        }
        Pane {
            id: ours
            x: supplier.x + desk.box.width + Theme.canvasSide
            y: Theme.canvasFoot
            visible: root.any && root.beside
            box: desk.box
            view: root.comparison.ours
            zoom: zoom
            dot: Theme.tertiary
            missing: root.comparison.matched ? "" : root.comparison.missing
            labelEnd: desk.pillRoom
            onTouched: desk.forceActiveFocus()
        }
        Hand {
            x: supplier.x
            y: supplier.y + Theme.labelRow
            visible: supplier.visible
            page: supplier.page
        }
        Hand {
            x: ours.x
            y: ours.y + Theme.labelRow
            visible: ours.visible
            page: ours.page
        }
        Ahead {
            state: root.state
            box: desk.box
            single: !root.beside
            difference: root.subtracting
            active: root.shown
        }
        When {
            id: pill
            active: root.any && zoom.zoomed
            ZoomPill {
                x: desk.width - width - Theme.canvasSide
                y: 9
                zoom: zoom
            }
        }
        When {
            active: root.any && Store.pinning
            Capsule {
                // Under the page where there is room, so that nothing of it is covered; else at its foot.
                readonly property real pageEnd: supplier.y + Theme.labelRow + supplier.sheet.y + supplier.sheet.height
                readonly property real end: desk.height - Theme.canvasFoot - zoom.foot
                x: supplier.x + supplier.sheet.x + (supplier.sheet.width - width) / 2
                y: pageEnd + 10 + height <= end ? pageEnd + 10 : Math.min(pageEnd, end) - height - 18
                icon: "hand.point.up.left.fill"
                text: "Click the page"
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
        Label {
            anchors.centerIn: parent
            visible: root.state.ready && !root.any
            text: "No pages in this file."
            color: Theme.secondary
        }
        Item {
            id: loupe
            x: 28
            y: desk.height - height - 24
            z: 2
            width: desk.width - 56
            height: CanvasGeometry.loupeHeight(width - 24) + 24

            Kept {
                id: lens
                wanted: root.state.closeup.open
                Loupe {
                    width: loupe.width
                    height: loupe.height
                    open: lens.open
                    closeup: root.state.closeup
                    onClosed: Actions.close.trigger()
                }
            }
        }
        FocusRing {
            anchors.margins: 2
            visible: desk.activeFocus && desk.byKey
        }
    }
}
