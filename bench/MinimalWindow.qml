import QtQuick
import QtQuick.Controls

ApplicationWindow {
    width: 412
    height: 915
    visible: true
    title: "Minimal"

    Label {
        anchors.centerIn: parent
        text: "Hello"
    }
}
