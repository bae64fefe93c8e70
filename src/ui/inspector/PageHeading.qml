pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces
import Vexal.Inspector

/// Which page it is, and how much was found on it.
Item {
    id: root

    required property pageReview review

    implicitHeight: title.height

    Label {
        id: title
        width: Math.min(implicitWidth, root.width - found.width - 8)
        text: root.review.title
        size: 21
        weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        id: found
        anchors.left: title.right
        anchors.leftMargin: 8
        anchors.baseline: title.baseline
        text: root.review.found
        size: 12
        weight: Font.DemiBold
        color: Theme.secondary
    }
}
