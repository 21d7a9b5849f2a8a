import QtQuick
import QtQuick.Controls

ApplicationWindow {
    width: 420
    height: 860
    visible: true
    title: "Minimal"

    Label {
        anchors.centerIn: parent
        text: "Hello"
    }
}
