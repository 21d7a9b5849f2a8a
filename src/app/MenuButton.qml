import QtQuick
import QtQuick.Controls
import Larkwells

// A button of the cover's menu: rounded, black-bordered, sliding open and shut in 0.3 s.
Button {
    id: button
    property bool shown: false
    // Keyboard focus arrived: the menu scrolls this button into view.
    signal focusedByKeyboard(Item item)
    onActiveFocusChanged: if (activeFocus) focusedByKeyboard(button)

    implicitWidth: 280
    topInset: 0
    bottomInset: 0
    height: shown ? 46 : 0
    opacity: shown ? 1 : 0
    visible: opacity > 0
    clip: true
    font.pixelSize: 18
    focusPolicy: Qt.StrongFocus
    Behavior on height { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }
    Behavior on opacity { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }

    contentItem: Label {
        text: button.text
        font: button.font
        color: button.enabled ? "black" : "#7a8080"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true // the button carries the name (and a closed menu lists neither)
    }
    background: Rectangle {
        radius: Theme.cornerRadius
        border.width: button.visualFocus ? Theme.borderWidth + 1 : Theme.borderWidth
        border.color: button.visualFocus ? Theme.tint : Theme.border
        color: button.down ? Theme.cellPressedColor : Theme.cellColor
    }
    // A closed menu's buttons are neither listed nor pressable by a screen reader.
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
    // Enter and Return press it too, as Space does.
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()
}
