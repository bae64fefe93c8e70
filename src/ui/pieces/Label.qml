pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A text as it stands: what comes from outside is never markup. It is one line unless it may wrap, and begins at the
/// left whatever it is written in.
Text {
    id: root

    property real size: 13
    property int weight: Font.Normal
    /// Extra space after each letter, in points: large text is set tighter.
    property real tracking: root.size >= 20 ? -0.025 * root.size : 0
    /// Part of the window for those who listen to it; a label inside a button is spoken by the button.
    property bool spoken: true

    font: Appearance.face(root.size, root.weight, root.tracking)
    color: Theme.text
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
    elide: Text.ElideRight
    maximumLineCount: root.wrapMode === Text.NoWrap ? 1 : 2147483647
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.ignored: !root.spoken
}
