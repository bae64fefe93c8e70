pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// Where a new note is written: what it will be on, the field, and the button that posts it.
FocusScope {
    id: root

    required property composerView view
    /// What is written so far; the screen keeps it.
    required property string text

    signal typed(text: string)
    signal posted
    signal cleared

    /// Puts the caret into the field.
    function write() {
        field.forceActiveFocus();
    }

    /// Another text is written on now: it is gone on with.
    function goOn() {
        field.toEnd();
    }

    implicitHeight: column.height + 24
    opacity: root.view.onItsWay ? Theme.onItsWay : 1

    Accessible.role: Accessible.Grouping
    Accessible.name: root.view.context

    Behavior on opacity {
        StandardFade {}
    }

    Column {
        id: column
        x: 12
        y: 12
        width: parent.width - 24
        spacing: 8

        Item {
            width: parent.width
            height: context.height
            Label {
                id: context
                objectName: "context"
                width: Math.min(implicitWidth, parent.width - (clear.visible ? clear.width + 8 : 0))
                text: root.view.context
                size: 11.5
                weight: Font.DemiBold
                color: Theme.secondary
            }
            TextButton {
                id: clear
                objectName: "clear"
                anchors.left: context.right
                anchors.leftMargin: 8
                visible: root.view.attached
                title: "Clear"
                onClicked: root.cleared()
            }
        }
        TextArea {
            id: field
            objectName: "field"
            width: parent.width
            focus: true
            least: 54
            text: root.text
            placeholder: root.view.placeholder
            name: root.view.context
            readOnly: root.view.onItsWay
            onTextChanged: root.typed(field.text)
            keepsEscape: root.view.attached
            onSubmitted: post.press()
            onEscaped: clear.press()
        }
        Pill {
            id: post
            objectName: "post"
            anchors.right: parent.right
            title: root.view.posting ? "Posting…" : "Post"
            size: 11
            tone: Tone.Accent
            filled: true
            enabled: root.view.posting || field.text.trim().length > 0
            busy: root.view.posting
            onClicked: root.posted()
        }
    }
}
