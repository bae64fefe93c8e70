pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A field for a few lines of plain text. It grows with them up to `mostLines`, then scrolls. Ctrl+Return hands in what
/// is written; Tab goes on to the next control.
FocusScope {
    id: root

    property alias text: edit.text
    property alias readOnly: edit.readOnly
    /// What is to be written there: shown while the field is empty.
    property string placeholder: ""
    /// What the field is called, for those who cannot see it.
    property string name: root.placeholder
    property real size: 13
    property int mostLines: 8
    /// How high the field is at least, in points.
    property real least: 0

    /// Escape asks the field for its end, and nothing else in the window.
    property bool keepsEscape: false

    readonly property real padding: 9
    readonly property bool writing: edit.activeFocus

    /// The person hands in what is written.
    signal submitted
    /// The person wants no more of it.
    signal escaped

    implicitWidth: 240
    implicitHeight: Math.max(root.least, Math.min(edit.contentHeight, Math.ceil(root.mostLines * line.lineSpacing)) + 2 * root.padding)

    FontMetrics {
        id: line
        font: edit.font
    }
    Rectangle {
        objectName: "ground"
        anchors.fill: parent
        radius: 10
        color: Theme.card
    }
    Flickable {
        id: view
        objectName: "view"
        anchors.fill: parent
        anchors.margins: root.padding
        contentHeight: edit.height
        interactive: view.contentHeight > view.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        function show(caret: rect) {
            if (caret.y < view.contentY)
                view.contentY = caret.y;
            else if (caret.y + caret.height > view.contentY + view.height)
                view.contentY = caret.y + caret.height - view.height;
        }
        onHeightChanged: view.show(edit.cursorRectangle)

        TextEdit {
            id: edit
            objectName: "edit"
            width: view.width
            height: Math.max(view.height, edit.contentHeight)
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            renderType: TextEdit.NativeRendering
            font: Appearance.face(root.size, Font.Normal, 0)
            color: Theme.text
            selectionColor: Theme.accent.solid
            selectedTextColor: Theme.onSolid

            Accessible.role: Accessible.EditableText
            Accessible.name: root.name
            Accessible.description: root.placeholder
            Accessible.multiLine: true
            Accessible.readOnly: edit.readOnly
            Accessible.focusable: true

            onCursorRectangleChanged: view.show(edit.cursorRectangle)
            // A text that is brought here is gone on with.
            onTextChanged: {
                if (!edit.activeFocus)
                    root.toEnd();
            }

            Keys.onShortcutOverride: event => event.accepted = root.hands(event) || root.escapes(event)
            Keys.onPressed: event => {
                event.accepted = root.hands(event) || root.escapes(event);
                if (root.hands(event))
                    root.submitted();
                else if (root.escapes(event))
                    root.escaped();
            }
            Keys.onTabPressed: edit.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: edit.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
        }
    }
    Label {
        objectName: "placeholder"
        anchors.fill: view
        visible: edit.length === 0 && edit.preeditText.length === 0
        text: root.placeholder
        size: root.size
        wrapMode: Text.Wrap
        color: Theme.tertiary
        spoken: false
    }
    Outlined {
        objectName: "outline"
        anchors.fill: parent
        radius: 10
        color: "transparent"
        visible: !edit.activeFocus
    }
    Rectangle {
        objectName: "focusOutline"
        anchors.fill: parent
        radius: 10
        color: "transparent"
        visible: edit.activeFocus
        border.width: 1.5
        border.pixelAligned: false
        border.color: Theme.accent.plain
        opacity: Theme.fieldFocus
    }

    /// Puts the caret behind the text.
    function toEnd() {
        edit.cursorPosition = edit.length;
    }
    function hands(event: KeyEvent): bool {
        const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        return enter && (event.modifiers & Qt.ControlModifier) !== 0;
    }
    function escapes(event: KeyEvent): bool {
        return root.keepsEscape && event.key === Qt.Key_Escape;
    }
}
