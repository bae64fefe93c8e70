pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// A thing that one acts on.
Outlined {
    radius: 12
    color: Theme.card
}
