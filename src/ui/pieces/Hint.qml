import QtQuick
import Vexal.Pieces

/// What its parent does, in a few words: shown when the pointer has rested on it for a moment. The window needs one
/// HintLayer above everything else.
HoverHandler {
    id: root

    property string text: ""

    onHoveredChanged: {
        if (root.hovered)
            Hints.offer(root.parent, root.text);
        else
            Hints.withdraw(root.parent);
    }
    onTextChanged: {
        if (root.hovered)
            Hints.offer(root.parent, root.text);
    }
    Component.onDestruction: Hints.withdraw(root.parent)
}
