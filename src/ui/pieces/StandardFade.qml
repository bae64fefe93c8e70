import QtQuick
import Vexal.Pieces

/// The standard animation for what appears and disappears. It stays where motion is reduced.
NumberAnimation {
    duration: Theme.fade
    easing: Appearance.curve
}
