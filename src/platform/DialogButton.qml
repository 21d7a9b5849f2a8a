import QtQuick
import QtQuick.Controls
import Larkwells

// A flat button of a dialog, in the words it is given ("Ok", not "OK"), with its own press tint
// and focus ring. Enter and Return press it, as Space does.
Button {
    id: button
    flat: true
    font.capitalization: Font.MixedCase
    Accessible.name: text
    Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
    Keys.onReturnPressed: if (enabled) clicked()
    Keys.onEnterPressed: if (enabled) clicked()

    background: PressTint {
        implicitWidth: 40
        implicitHeight: 40
        pressed: button.down
        focusRing: button.visualFocus
    }
}
