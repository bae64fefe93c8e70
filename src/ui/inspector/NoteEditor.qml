pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A note's text while it is being edited. It begins with `before` and tells every change.
Column {
    id: root

    required property string before
    property bool busy: false
    /// The person has just asked for it: the keyboard comes here. It stays away when a row is built anew.
    property bool wanted: false
    readonly property bool writing: field.writing

    signal typed(text: string)
    signal cancelled
    signal saved

    spacing: 8
    Component.onCompleted: {
        field.text = root.before;
        if (root.wanted)
            field.forceActiveFocus();
    }

    TextArea {
        id: field
        width: parent.width
        name: "Edit the note"
        readOnly: root.busy
        onTextChanged: root.typed(field.text)
        keepsEscape: true
        onSubmitted: save.press()
        onEscaped: cancel.press()
    }
    Row {
        anchors.right: parent.right
        spacing: 8
        Pill {
            id: cancel
            objectName: "cancel"
            title: "Cancel"
            enabled: !root.busy
            onClicked: root.cancelled()
        }
        Pill {
            id: save
            objectName: "save"
            title: "Save"
            tone: Tone.Accent
            filled: true
            enabled: field.text.trim().length > 0
            busy: root.busy
            onClicked: root.saved()
        }
    }
}
