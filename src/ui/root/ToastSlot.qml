pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Where the store's toast stands: above everything, at the foot of the window.
Item {
    id: root

    required property RootState state

    implicitHeight: 40

    When {
        active: root.state.toastId.length > 0
        ToastView {
            id: toast
            anchors.horizontalCenter: root.horizontalCenter
            anchors.bottom: root.bottom
            toastId: root.state.toastId
            text: root.state.toastText
            undoLabel: root.state.undoLabel
            onUndone: root.state.undoToast()
            onExpired: id => root.state.clearToast(id)

            // One that comes is read out by itself; one that takes another's place has to be told of.
            Connections {
                target: root.state
                function onToastChanged() {
                    if (root.state.toastId.length > 0)
                        root.state.announce(toast);
                }
            }
        }
    }
}
