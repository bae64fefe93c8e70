pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// The window while nobody is signed in: the mark, one button and what it will do.
Item {
    id: root

    /// A sign-in is under way.
    required property bool working
    /// The page that the browser should have opened is still to be gone through.
    property bool canCopyLink: false
    /// The organisation's e-mail domain, without the at-sign.
    required property string emailDomain
    required property string dedication

    /// The person wants to sign in.
    signal signInRequested
    /// They have thought better of it.
    signal cancelRequested
    /// They want to open the page themselves.
    signal linkRequested

    property bool appeared: Theme.resting
    readonly property int apart: Theme.reducedMotion ? 0 : 40
    readonly property int entrance: Theme.resting ? 0 : 900

    Component.onCompleted: root.appeared = true

    component Entrance: NumberAnimation {
        duration: root.entrance
        easing: Appearance.curve
    }
    // The two files of the mark come from either side and meet.
    component Half: Item {
        id: half
        required property int from
        width: 128
        height: 88
        // How far it stands from where it belongs.
        property real away: root.appeared ? 0 : half.from
        opacity: root.appeared ? 1 : 0
        transform: Translate {
            x: half.away
        }
        Behavior on away {
            Entrance {}
        }
        Behavior on opacity {
            Entrance {}
        }
    }

    Column {
        id: middle
        anchors.centerIn: parent

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 128
            height: 88
            Half {
                objectName: "ours"
                from: -root.apart
                HalfRound {
                    x: 15
                    width: 44
                    height: 88
                    color: Theme.accent.plain
                }
            }
            Half {
                objectName: "theirs"
                from: root.apart
                HalfRound {
                    x: 69
                    width: 44
                    height: 88
                    mirrored: true
                    stroke: 3.5
                    color: Theme.text
                }
            }
        }
        Gap { height: 22 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "name"
            text: "Vexal"
            size: 46
            weight: Font.DemiBold
        }
        Gap { height: 4 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "tagline"
            text: "Supplier proofs, checked against what we sent."
            size: 15
            color: Theme.secondary
        }
        Gap { height: 34 }
        SignInButton {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "button"
            working: root.working
            onClicked: root.signInRequested()
        }
        Gap { height: 16 }
        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            objectName: "hint"
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: "Google opens on its own page.\nSign in there with your @%1 account.".arg(root.emailDomain)
            size: 12
            lineHeight: 17
            lineHeightMode: Text.FixedHeight
            color: Theme.secondary
        }
    }
    // Below what is centred, so that nothing moves when it comes.
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: middle.bottom
        anchors.topMargin: 14
        spacing: 18
        opacity: root.working ? 1 : 0
        enabled: root.working
        Behavior on opacity {
            StandardFade {}
        }
        TextButton {
            objectName: "cancel"
            title: "Cancel"
            size: 12
            onClicked: root.cancelRequested()
        }
        TextButton {
            objectName: "link"
            visible: root.canCopyLink
            title: "Copy link"
            size: 12
            onClicked: root.linkRequested()
        }
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 18
        objectName: "dedication"
        text: root.dedication
        size: 11
        color: Theme.secondary
    }

    component Gap: Item {
        width: 1
    }
}
