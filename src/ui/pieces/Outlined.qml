pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A surface with a hairline around it, one device pixel at every scale.
Rectangle {
    border.width: 1 / Screen.devicePixelRatio
    border.pixelAligned: false
    border.color: Theme.hair
}
