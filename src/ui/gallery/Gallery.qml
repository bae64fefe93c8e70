import QtQuick
import Vexal.Pieces
import Vexal.Root

/// The sheet of pieces in a window, the one of what a page is reviewed with, or the sign-in screen.
Window {
    id: root

    property bool signIn: false
    property bool review: false

    width: signIn ? 1500 : review ? 660 : 620
    height: signIn ? 940 : 1120
    visible: true
    title: "Vexal: pieces"
    color: Theme.window

    Loader {
        anchors.fill: parent
        active: !root.signIn && !root.review
        sourceComponent: Sheet {}
    }
    Loader {
        anchors.fill: parent
        active: root.review
        sourceComponent: Review {}
    }
    Loader {
        anchors.fill: parent
        active: root.signIn
        sourceComponent: SignInView {
            working: false
            emailDomain: "lanternhouse.example"
            dedication: "For Mira and Teo."
            onSignInRequested: working = true
        }
    }
    HintLayer {}
}
