import QtQuick

Rectangle {
    color: "#F3F6F7"
}
