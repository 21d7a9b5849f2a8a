import QtQuick
import QtQuick.Controls
import Larkwells

// A button of the cover's menu: rounded, black-bordered, sliding open and shut in 0.3 s.
Button {
    id: button
    property bool shown: false

    implicitWidth: 280
    topInset: 0
    bottomInset: 0
    height: shown ? 46 : 0
    opacity: shown ? 1 : 0
    visible: opacity > 0
    clip: true
    font.pixelSize: 18
    Behavior on height { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }
    Behavior on opacity { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }

    contentItem: Label {
        text: button.text
        font: button.font
        color: button.enabled ? "black" : "#7a8080"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        radius: 10
        border.width: 2
        border.color: "black"
        color: button.down ? "#c9dede" : Qt.hsva(0.5, 0.06, 0.96, 0.94)
    }
    Accessible.name: text
    Accessible.onPressAction: clicked()
}
