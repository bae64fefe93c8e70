pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Where a file stands, from its `status` as the board has it.
Chip {
    id: root

    required property string status
    readonly property tint tint: Theme.tint(Status.tone(root.status))

    text: Status.title(root.status)
    color: root.tint.plain
    ink: root.tint.ink
    dot: true
}
