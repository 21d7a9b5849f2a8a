import QtQuick
import QtQuick.Controls
import Larkwells

// A framed button of the update-file screens; its title turns grey while it is disabled.
Button {
    id: button
    flat: true
    font.pixelSize: Theme.barFontSize
    font.capitalization: Font.MixedCase
    focusPolicy: Qt.StrongFocus
    topPadding: 6
    bottomPadding: 6
    leftPadding: 8
    rightPadding: 8
    implicitHeight: Math.max(Theme.touchTarget, implicitContentHeight + topPadding + bottomPadding)
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
    // Enter and Return press it too, as Space does.
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    contentItem: Label {
        text: button.text
        font: button.font
        color: button.enabled ? Theme.tint : "gray"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
        Accessible.ignored: true // the button's name says it
    }
    background: Rectangle {
        radius: Theme.cornerRadius
        color: button.down ? Theme.cellPressedColor : Theme.cellColor
        border.width: button.visualFocus ? Theme.focusRingWidth + 1 : Theme.borderWidth
        border.color: button.visualFocus ? Theme.tint : "black"
    }
}
