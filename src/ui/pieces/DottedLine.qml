pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A rule that divides less than a hairline does.
Dashes {
    color: Theme.secondary
}
