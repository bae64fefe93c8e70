pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// What the program does when it is asked by the menu or a key, wherever the person is.
Item {
    id: root

    required property RootState state
    signal aboutRequested

    readonly property bool comparing: root.state.place === RootState.OneFile

    Commands {
        id: commands
        store: Store
    }
    component Compares: OnAction {
        required property int mode
        enabled: root.comparing
        checked: root.comparing && Store.mode === mode
        onTriggered: Store.setMode(mode)
    }

    OnAction {
        action: Actions.about
        onTriggered: root.aboutRequested()
    }
    OnAction {
        action: Actions.changePhoto
        enabled: commands.canChangePhoto
        onTriggered: Store.changePhoto()
    }
    OnAction {
        action: Actions.signOut
        enabled: Store.signedIn
        onTriggered: Store.signOut()
    }
    OnAction {
        action: Actions.quit
        onTriggered: root.Window.window.close()
    }
    OnAction {
        action: Actions.sync
        enabled: commands.canSync
        onTriggered: Store.startSync()
    }
    OnAction {
        action: Actions.refresh
        enabled: commands.canRefresh
        onTriggered: Store.refreshNow()
    }
    OnAction {
        action: Actions.makeReport
        enabled: commands.canMakeReport
        onTriggered: commands.makeReport()
    }
    OnAction {
        action: Actions.markReviewed
        enabled: commands.canMarkReviewed
        onTriggered: commands.markReviewed()
    }
    OnAction {
        action: Actions.activity
        enabled: Store.signedIn
        checked: Store.showActivity
        onTriggered: Store.toggleActivity()
    }
    Compares {
        action: Actions.sideBySide
        mode: Store.Side
    }
    Compares {
        action: Actions.overlay
        mode: Store.Overlay
    }
    Compares {
        action: Actions.blink
        mode: Store.Blink
    }
}
