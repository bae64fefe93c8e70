pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Canvas

/// How closely the page is looked at, while that is closer than fitted.
Outlined {
    id: root

    required property PageZoom zoom

    width: row.width + 8
    height: 24
    radius: 12
    color: Theme.card

    Row {
        id: row
        anchors.centerIn: parent
        height: parent.height

        component Step: IconButton {
            required property Action action
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 20
            implicitHeight: 20
            radius: 10
            size: 10
            bold: true
            color: Theme.text
            onClicked: action.trigger()
        }

        Step {
            icon: "minus"
            help: "Zoom out"
            action: Actions.zoomOut
        }
        Item {
            anchors.verticalCenter: parent.verticalCenter
            width: 40
            height: 16
            Accessible.role: Accessible.StaticText
            Accessible.name: root.zoom.percent + "%"
            Row {
                anchors.centerIn: parent
                Digits {
                    text: root.zoom.percent
                    size: 11.5
                    weight: Font.DemiBold
                }
                Label {
                    text: "%"
                    size: 11.5
                    weight: Font.DemiBold
                    spoken: false
                }
            }
        }
        Step {
            icon: "plus"
            help: "Zoom in"
            action: Actions.zoomIn
        }
        Item {
            width: 9
            height: parent.height
            Rule {
                anchors.centerIn: parent
                upright: true
                height: 12
            }
        }
        TextButton {
            anchors.verticalCenter: parent.verticalCenter
            title: "Fit"
            help: "Show the whole page"
            color: Theme.text
            onClicked: Actions.fitPage.trigger()
        }
        Item {
            width: 8
            height: 1
        }
    }
}
