pragma ComponentBehavior: Bound
import QtQuick
import Vexal.Pieces

/// Listens to the keys of every action, for the window it stands in.
Item {
    Repeater {
        model: Actions.all

        Item {
            id: key
            required property Action modelData

            Shortcut {
                sequences: key.modelData.sequences
                enabled: key.modelData.enabled
                autoRepeat: key.modelData.repeats
                onActivated: key.modelData.trigger()
            }
        }
    }
}
