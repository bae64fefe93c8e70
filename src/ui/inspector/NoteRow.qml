pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// A note: who, when, what; done with or not. Shows a row; asks for what is to become of it.
Item {
    id: root

    required property noteRow row
    /// What was typed so far, where the note is being edited anew.
    property string draft: ""
    property bool confirmDelete: false
    property bool menuOpen: false
    property bool everOpened: false
    readonly property real indent: root.row.number.length > 0 ? 23 : 0

    readonly property bool editing: root.row.editing
    // The keyboard is in the editor; when that goes, it stays with the note.
    property bool writing: false
    property bool justAsked: false
    onEditingChanged: {
        if (root.editing)
            return;
        root.justAsked = false;
        if (!root.writing)
            return;
        root.writing = false;
        more.forceActiveFocus();
    }

    signal resolveRequested(resolved: bool)
    signal editRequested
    signal typed(text: string)
    signal editCancelled
    signal editSaved
    signal deleteRequested

    implicitHeight: body.y + body.height

    Accessible.role: Accessible.ListItem
    Accessible.name: root.row.text
    Accessible.description: root.row.author + ", " + root.row.when
    Accessible.onPressAction: more.press()

    Item {
        id: head
        width: parent.width
        height: 20

        PinBadge {
            objectName: "badge"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.row.number.length > 0
            number: root.row.number
        }
        Label {
            id: author
            anchors.verticalCenter: parent.verticalCenter
            x: root.indent
            width: Math.min(implicitWidth, 110)
            text: root.row.author
            size: 12.5
            weight: Font.DemiBold
        }
        Label {
            anchors.left: author.right
            anchors.leftMargin: 6
            anchors.right: resolve.left
            anchors.rightMargin: 4
            anchors.baseline: author.baseline
            text: root.row.when
            size: 11
            color: Theme.secondary
        }
        ResolveButton {
            id: resolve
            objectName: "resolve"
            anchors.right: more.left
            anchors.verticalCenter: parent.verticalCenter
            help: root.row.resolveHelp
            resolved: root.row.resolved
            busy: root.row.busy
            onClicked: root.resolveRequested(!root.row.resolved)
        }
        IconButton {
            id: more
            objectName: "more"
            anchors.right: parent.right
            anchors.rightMargin: -6
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 24
            implicitHeight: 24
            icon: "ellipsis"
            size: 13
            help: "Edit or delete"
            open: root.menuOpen
            onClicked: {
                root.everOpened = true;
                root.menuOpen = !root.row.busy;
            }
        }
    }
    Column {
        id: body
        y: 20
        width: parent.width

        TextEdit {
            objectName: "text"
            visible: !root.row.editing
            x: root.indent
            width: parent.width - x
            readOnly: true
            selectByMouse: true
            text: root.row.text
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            renderType: TextEdit.NativeRendering
            font.pixelSize: 13
            font.strikeout: root.row.resolved
            color: root.row.resolved ? Theme.secondary : Theme.text
            selectionColor: Theme.accent.solid
            selectedTextColor: Theme.onSolid
            Accessible.role: Accessible.StaticText
            Accessible.name: root.row.text
        }
        When {
            active: root.row.editing
            NoteEditor {
                width: body.width
                topPadding: 6
                before: root.draft
                wanted: root.justAsked
                busy: root.row.busy
                onTyped: text => root.typed(text)
                onWritingChanged: {
                    if (root.row.editing)
                        root.writing = writing;
                }
                onCancelled: root.editCancelled()
                onSaved: root.editSaved()
            }
        }
    }
    // Few rows ever need them.
    When {
        active: root.everOpened
        Menu {
            opener: more
            open: root.menuOpen
            titles: ["Edit", "Delete"]
            destructive: 1
            onDismissed: root.menuOpen = false
            onChosen: index => {
                root.justAsked = index === 0;
                root.confirmDelete = index === 1;
                if (root.justAsked)
                    root.editRequested();
            }
        }
    }
    When {
        active: root.everOpened
        Confirmation {
            opener: more
            open: root.confirmDelete
            question: "Delete this note?"
            action: "Delete"
            onDismissed: root.confirmDelete = false
            onConfirmed: root.deleteRequested()
        }
    }
}
