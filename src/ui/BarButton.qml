import QtQuick
import QtQuick.Controls
import Larkwells

// A text button in a screen's bar. A screen reader can press it only while it is shown and
// enabled, so hidden buttons never act.
ToolButton {
    id: button
    font.pixelSize: Theme.barFontSize
    font.capitalization: Font.MixedCase
    focusPolicy: Qt.StrongFocus
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
    // Enter and Return press it too, as Space does.
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        radius: 6
        color: "transparent"
        border.width: Theme.focusRingWidth
        border.color: Theme.tint
        visible: button.visualFocus
    }
}
