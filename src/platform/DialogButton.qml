import QtQuick
import QtQuick.Controls
import Larkwells

// A flat button of a dialog, in the words it is given ("Ok", not "OK"). It draws its own press
// tint and focus ring: the style's ripple, inside a dialog drawn without a graphics driver,
// landed in the window's corner instead of on the button. Enter and Return press it, as Space
// does.
Button {
    id: button
    flat: true
    font.capitalization: Font.MixedCase
    Accessible.name: text
    Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    background: Rectangle {
        implicitWidth: 40
        implicitHeight: 40
        radius: 4
        color: button.down ? Qt.rgba(0, 0, 0, 0.1) : "transparent"
        border.width: button.visualFocus ? Theme.focusRingWidth : 0
        border.color: Theme.tint
    }
}
