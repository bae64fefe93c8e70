pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root
import Vexal.File
import Vexal.Inspector

/// The window's one view: the sign-in screen, or the board as sidebar, rule and detail.
FocusScope {
    id: root

    /// How far down the window can be taken by the pointer: to the foot of the sidebar's header.
    readonly property int header: 78

    /// Fills the screen with the window, or gives it back its own size.
    function zoom() {
        const window = root.Window.window;
        if (window.visibility === Window.Windowed)
            window.showMaximized();
        else
            window.showNormal();
    }

    RootState {
        id: board
        store: Store
    }
    FileState {
        id: selected
        store: Store
        time: PassingTime
    }
    InspectorState {
        id: inspected
        store: Store
        time: PassingTime
        drafts: Drafts
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.window
    }
    // Behind what can be pressed: the empty places of the header are the window's handle.
    WindowHandle {
        objectName: "header"
        width: parent.width
        height: root.header
        onDoubleClicked: root.zoom()
    }
    When {
        active: !Store.signedIn
        SignInView {
            anchors.fill: parent
            focus: true
            working: Store.signingIn
            canCopyLink: board.canCopySignInLink
            emailDomain: board.emailDomain
            dedication: board.dedication
            onSignInRequested: board.signIn()
            onCancelRequested: board.cancelSignIn()
            onLinkRequested: board.copySignInLink()
        }
    }
    When {
        active: !Store.signedIn
        AppMenuPlace {
            opener: buttons
        }
    }
    When {
        active: Store.signedIn
        BoardView {
            width: root.width
            height: root.height
            focus: true
            state: board
            file: selected
            page: inspected
        }
    }
    ToastSlot {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 22
        state: board
    }
    WindowEdges {}
    WindowButtons {
        id: buttons
        onZoomRequested: root.zoom()
    }
    ActionKeys {}
    AppActions {
        state: board
        onAboutRequested: about.wanted = true
    }
    Kept {
        id: about
        About {
            opener: root
            open: about.open
            onDismissed: about.wanted = false
        }
    }
    HintLayer {}
}
