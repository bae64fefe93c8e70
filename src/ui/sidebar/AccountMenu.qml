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
    open: menu.wanted
    onClicked: menu.wanted = true

    Kept {
        id: menu
        Menu {
            opener: root
            open: menu.open
            titles: ["Change my photo…", "Sign out"]
            ruled: 1
            onDismissed: menu.wanted = false
            onChosen: index => index === 0 ? root.photoRequested() : root.signOutRequested()
        }
    }
}
