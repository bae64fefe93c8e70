pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// The window's one view: the sign-in screen, or the board as sidebar, rule and detail.
FocusScope {
    id: root

    RootState {
        id: board
        store: Store
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.window
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
        active: Store.signedIn
        BoardView {
            anchors.fill: parent
            focus: true
            state: board
        }
    }
    ToastSlot {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 22
        state: board
    }
    ActionKeys {}
    HintLayer {}
}
