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
    readonly property real indent: root.row.number.length > 0 ? 23 : 0

    readonly property bool editing: root.row.editing
    // The keyboard is in the editor; when that goes, it stays with the note.
    property bool writing: false
    onEditingChanged: {
        if (root.editing || !root.writing)
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

    Item {
        id: head
        width: parent.width
        height: 20

        Rectangle {
            id: badge
            objectName: "badge"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.row.number.length > 0
            width: 16
            height: 16
            radius: 8
            color: Theme.accent.solid
            Rectangle {
                anchors.fill: parent
                anchors.margins: -1.2
                radius: 9.2
                color: "transparent"
                border.width: 1.2
                border.pixelAligned: false
                border.color: Theme.onSolid
            }
            Label {
                anchors.centerIn: parent
                text: root.row.number
                size: 8.5
                weight: Font.Bold
                color: Theme.onSolid
                Accessible.name: "Pin " + root.row.number
            }
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
        Pressable {
            id: resolve
            objectName: "resolve"
            anchors.right: more.left
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 24
            implicitHeight: 24
            radius: 7
            name: root.row.resolved ? "Resolved" : "Resolve"
            help: root.row.resolveHelp
            busy: root.row.busy
            onClicked: root.resolveRequested(!root.row.resolved)

            Accessible.checkable: true
            Accessible.checked: root.row.resolved

            Rectangle {
                anchors.fill: parent
                radius: 7
                visible: resolve.hovered
                color: resolve.pressed ? Theme.pressed : Theme.hover
            }
            Rectangle {
                objectName: "ring"
                anchors.centerIn: parent
                visible: !root.row.resolved && !root.row.busy
                width: 13
                height: 13
                radius: 6.5
                color: "transparent"
                border.width: 1.1
                border.pixelAligned: false
                border.color: Theme.tertiary
            }
            Symbol {
                anchors.centerIn: parent
                visible: root.row.resolved && !root.row.busy
                name: "checkmark.circle.fill"
                size: 13
                color: Theme.reviewed.plain
            }
            Spinner {
                anchors.centerIn: parent
                visible: root.row.busy
                size: 11
                color: Theme.secondary
            }
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
            open: menu.open
            onClicked: menu.open = !root.row.busy
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
    Menu {
        id: menu
        opener: more
        titles: ["Edit", "Delete"]
        destructive: 1
        onDismissed: menu.open = false
        onChosen: index => {
            if (index === 0)
                root.editRequested();
            else
                root.confirmDelete = true;
        }
    }
    Confirmation {
        opener: more
        open: root.confirmDelete
        question: "Delete this note?"
        action: "Delete"
        onDismissed: root.confirmDelete = false
        onConfirmed: root.deleteRequested()
    }
}
