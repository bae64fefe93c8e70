import QtQuick
import Vexal.Pieces

/// The standard animation for a change of colour.
ColorAnimation {
    duration: Theme.fade
    easing: Appearance.curve
}
