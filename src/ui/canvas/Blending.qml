import QtQuick

/// How one page is laid over the other; every file starts afresh.
QtObject {
    id: root

    /// How much of ours shows through, from 0 to 1.
    property real share: 0.5
    /// Ours cancels out what is the same on both.
    property bool difference: false
    /// While the two alternate: ours is the one that is seen.
    property bool ours: false

    function reset() {
        root.share = 0.5;
        root.difference = false;
        root.ours = false;
    }
}
