pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Where the program's menu opens when it is asked for.
Item {
    id: root

    required property Item opener

    OnAction {
        action: Actions.menu
        checked: menu.wanted
        onTriggered: menu.wanted = !menu.wanted
    }
    Kept {
        id: menu
        AppMenu {
            opener: root.opener
            open: menu.open
            onDismissed: menu.wanted = false
        }
    }
}
