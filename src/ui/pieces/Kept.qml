import QtQuick
import Vexal.Pieces

/// What stands in it is built when it is wanted for the first time, and stays: for what opens over the window, so that
/// the window itself stands sooner.
When {
    id: root

    property bool wanted: false
    /// It is wanted, and stands: now it can show itself.
    property bool open: false

    onWantedChanged: root.settle()
    Component.onCompleted: root.settle()

    function settle() {
        root.active = root.active || root.wanted;
        root.open = root.wanted;
    }
}
