pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Root

/// What the program is, which one it is, and whose work is in it.
Overlay {
    id: root

    Accessible.role: Accessible.Dialog
    Accessible.name: "About Vexal"

    Rectangle {
        anchors.fill: parent
        color: Theme.shadow
    }
    Floating {
        objectName: "panel"
        anchors.centerIn: parent
        width: 420
        height: Math.min(column.implicitHeight + 2 * 24, root.height - 32)
        radius: 14

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        Flickable {
            anchors.fill: parent
            anchors.topMargin: 24
            anchors.bottomMargin: 24
            contentHeight: column.implicitHeight
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive

            Column {
                id: column
                x: 24
                width: parent.width - 48

                VexalMark {
                    anchors.horizontalCenter: parent.horizontalCenter
                    size: 44
                }
                Gap { height: 12 }
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: "Vexal"
                    size: 21
                    weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                }
                Gap { height: 2 }
                Label {
                    objectName: "version"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: Imprint.version
                    size: 12
                    color: Theme.secondary
                }
                Gap { height: 18 }
                Rule {
                    width: parent.width
                }
                Gap { height: 14 }
                Label {
                    text: "Made with"
                    size: 12
                    weight: Font.DemiBold
                }
                Gap { height: 8 }
                Repeater {
                    model: Imprint.count

                    Item {
                        id: row
                        required property int index
                        readonly property notice notice: Imprint.notice(row.index)

                        width: column.width
                        height: 38

                        Accessible.role: Accessible.ListItem
                        Accessible.name: row.notice.name + ", " + row.notice.licence + ", " + row.notice.holder

                        Label {
                            id: name
                            text: row.notice.name
                            size: 12.5
                            weight: Font.Medium
                            spoken: false
                        }
                        Label {
                            anchors.right: parent.right
                            anchors.baseline: name.baseline
                            text: row.notice.licence
                            size: 11.5
                            color: Theme.secondary
                            spoken: false
                        }
                        Label {
                            anchors.top: name.bottom
                            anchors.topMargin: 1
                            width: parent.width
                            text: "© " + row.notice.holder
                            size: 11
                            color: Theme.tertiary
                            spoken: false
                        }
                    }
                }
                Gap { height: 10 }
                Pill {
                    objectName: "done"
                    anchors.horizontalCenter: parent.horizontalCenter
                    focus: true
                    title: "Close"
                    onClicked: root.dismissed()
                }
            }
        }
    }

    component Gap: Item {
        width: 1
    }
}
