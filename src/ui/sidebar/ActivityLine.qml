pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Sidebar

/// One line of the activity list: who, what, when. It may lead to a file.
Item {
    id: root

    required property activityRow row
    /// The list's keyboard cursor is here.
    property bool current: false
    signal followed

    readonly property bool leads: root.row.leads

    implicitHeight: words.height + 16

    Accessible.role: root.leads ? Accessible.Button : Accessible.ListItem
    Accessible.name: root.row.sentence
    Accessible.description: root.row.when
    Accessible.focusable: true
    Accessible.focused: root.current
    Accessible.onPressAction: root.follow()

    function follow() {
        if (root.leads)
            root.followed();
    }

    Rectangle {
        anchors.fill: parent
        visible: root.leads && hover.hovered
        color: tap.pressed ? Theme.pressed : Theme.hover
    }
    Item {
        anchors.fill: parent
        anchors.margins: 5
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        FocusRing {
            visible: root.current
            around: 5
        }
    }
    Avatar {
        visible: root.row.actor.length > 0
        x: 16
        y: 8
        size: 22
        email: root.row.actor
        name: root.row.name
        photo: root.row.photo
        color: root.row.color
        ground: Theme.card
        Accessible.ignored: true
    }
    VexalMark {
        visible: root.row.actor.length === 0
        x: 16 + (22 - width) / 2
        y: 8 + (22 - height) / 2
        size: 13
        Accessible.ignored: true
    }
    Column {
        id: words
        x: 48
        y: 8
        width: parent.width - x - 16
        Label {
            width: parent.width
            text: root.row.styled
            textFormat: Text.StyledText
            size: 12.5
            lineHeight: 17
            lineHeightMode: Text.FixedHeight
            wrapMode: Text.Wrap
            maximumLineCount: 6
            spoken: false
        }
        Label {
            width: parent.width
            text: root.row.when
            size: 11
            lineHeight: 15
            lineHeightMode: Text.FixedHeight
            color: Theme.secondary
            spoken: false
        }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap
        onTapped: root.follow()
    }
}
