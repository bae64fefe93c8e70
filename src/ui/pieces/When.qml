import QtQuick

/// What stands in it exists only while `active` holds, as a child of its parent. (In this Qt a Loader cannot make what
/// is bound to the names around it.)
Repeater {
    property bool active: false

    model: active ? 1 : 0
}
