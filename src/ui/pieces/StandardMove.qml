import QtQuick
import Vexal.Pieces

/// The standard animation for what travels, grows or turns. At once where nothing may move.
NumberAnimation {
    duration: Theme.move
    easing: Appearance.curve
}
