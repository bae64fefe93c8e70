pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// Starts the sign-in; white in both appearances. While one is under way it turns, and another press begins anew.
Pressable {
    id: root

    /// A sign-in is under way.
    property bool working: false

    // The label looks centred with a little more room after it than before the logo.
    implicitWidth: 17 + logo.width + row.spacing + Math.ceil(measure.advanceWidth) + 20
    implicitHeight: 44
    radius: 11
    name: root.working ? "Opening Google…" : "Sign in with Google"

    TextMetrics {
        id: measure
        font: label.font
        text: "Sign in with Google"
    }
    Outlined {
        anchors.fill: parent
        radius: root.radius
        color: Theme.paper
    }
    Rectangle {
        anchors.fill: parent
        radius: root.radius
        visible: root.hovered
        // Paper is light in both appearances.
        color: Appearance.colour(root.pressed ? Role.Pressed : Role.Hover, false)
    }
    Row {
        id: row
        x: 17
        anchors.verticalCenter: parent.verticalCenter
        spacing: 11
        Item {
            id: logo
            anchors.verticalCenter: parent.verticalCenter
            width: 18
            height: 18
            GoogleG {
                visible: !root.working
            }
            Spinner {
                anchors.centerIn: parent
                visible: root.working
                size: 16
                color: Theme.onPaper
            }
        }
        Label {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            text: root.name
            size: 14.5
            weight: Font.DemiBold
            color: Theme.onPaper
            spoken: false
        }
    }
}
