pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// What a check found, and how it is judged. Shows a row; asks for the focus, for a judgement, for a note; decides
/// nothing. What it is given as children, its notes, stands above the buttons.
Item {
    id: root

    required property findingRow row
    /// Only the title and the buttons.
    property bool compact: false
    default property alias notes: attached.data

    signal focusRequested
    signal judged(state: string)
    signal noteRequested
    /// All of the row has its place, and the card its height.
    signal laidOut

    readonly property tint tint: Theme.tint(root.row.tone)
    /// Judged fine, and nobody is at it: it steps back.
    readonly property bool dimmed: root.row.fine && !hover.hovered && !root.row.focused && !root.holdsKeyboard
    readonly property bool holdsKeyboard: root.activeFocus || issue.activeFocus || fine.activeFocus || note.activeFocus
    readonly property color quiet: root.dimmed ? Theme.tint(Tone.Neutral).plain : Theme.secondary

    implicitHeight: column.height + 24
    opacity: root.dimmed ? Theme.judgedFine : 1
    activeFocusOnTab: true

    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.title
    Accessible.description: root.compact ? "" : root.row.detail.length > 0 ? root.row.tag + ". " + root.row.detail : root.row.tag
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: root.row.focused
    Accessible.onPressAction: root.focusRequested()

    Behavior on opacity {
        StandardFade {}
    }
    Keys.onReturnPressed: root.focusRequested()
    Keys.onEnterPressed: root.focusRequested()
    Keys.onSpacePressed: root.focusRequested()

    Card {
        anchors.fill: parent
        border.color: root.row.focused ? "transparent" : Theme.hair
    }
    Rectangle {
        objectName: "focusOutline"
        anchors.fill: parent
        radius: 12
        color: "transparent"
        border.width: 1.5
        border.pixelAligned: false
        border.color: root.tint.plain
        opacity: root.row.focused ? Theme.chosenOutline : 0
        Behavior on opacity {
            StandardFade {}
        }
    }
    FocusRing {
        around: 12
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.focusRequested()
    }
    Column {
        id: column
        x: 12
        y: 12
        width: parent.width - 24
        onPositioningComplete: root.laidOut()

        SeverityLine {
            visible: !root.compact
            width: parent.width
            row: root.row
            quiet: root.quiet
        }
        Label {
            objectName: "title"
            width: parent.width
            topPadding: root.compact ? 0 : 3
            text: root.row.title
            size: 13.5
            weight: Font.DemiBold
            lineHeight: 18
            lineHeightMode: Text.FixedHeight
            wrapMode: Text.Wrap
            maximumLineCount: 4
            spoken: false
        }
        Label {
            objectName: "detail"
            visible: !root.compact && root.row.detail.length > 0
            width: parent.width
            topPadding: 1
            text: root.row.detail
            size: 12
            lineHeight: 16.5
            lineHeightMode: Text.FixedHeight
            wrapMode: Text.Wrap
            maximumLineCount: 20
            color: root.quiet
        }
        When {
            active: !root.compact && root.row.compared
            Item {
                width: column.width
                height: sides.height + 8
                BeforeAfter {
                    id: sides
                    y: 8
                    width: parent.width
                    ours: root.row.ours
                    theirs: root.row.theirs
                    supplier: root.row.supplier
                }
            }
        }
        Column {
            id: attached
            visible: !root.compact
            width: parent.width
        }
        Item {
            width: parent.width
            height: 10 + issue.height
            StateButton {
                id: issue
                objectName: "issue"
                y: 10
                title: "Real issue"
                icon: "exclamationmark.triangle.fill"
                tone: Tone.Issue
                on: root.row.issue
                busy: root.row.busy
                onClicked: root.judged("issue")
            }
            StateButton {
                id: fine
                objectName: "fine"
                anchors.left: issue.right
                anchors.leftMargin: 7
                y: 10
                title: "Fine"
                icon: "checkmark"
                tone: Tone.Reviewed
                on: root.row.fine
                busy: root.row.busy
                onClicked: root.judged("fine")
            }
            IconButton {
                id: note
                objectName: "note"
                anchors.right: parent.right
                anchors.rightMargin: -6
                anchors.verticalCenter: issue.verticalCenter
                icon: "text.bubble"
                size: 13
                color: root.quiet
                help: "Add a note to this"
                onClicked: root.noteRequested()
            }
        }
        Label {
            objectName: "judged"
            visible: !root.compact && root.row.judged.length > 0
            width: parent.width
            topPadding: 7
            text: root.row.judged
            size: 11.5
            color: root.quiet
        }
    }
}
