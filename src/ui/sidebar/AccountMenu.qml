pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// What a person can do about themselves.
IconButton {
    id: root

    signal photoRequested
    signal signOutRequested

    icon: "ellipsis.circle"
    size: 14
    help: "Account"
    open: menu.open
    onClicked: menu.open = true

    Menu {
        id: menu
        opener: root
        titles: ["Change my photo…", "Sign out"]
        ruled: 1
        onDismissed: menu.open = false
        onChosen: index => index === 0 ? root.photoRequested() : root.signOutRequested()
    }
}
