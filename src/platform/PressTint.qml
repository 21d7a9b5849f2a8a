import QtQuick
import Larkwells

// The background of a dialog's or a sheet's flat control: a tint while pressed and the app's
// focus ring. The style's own ripple, inside a dialog drawn without a graphics driver, landed in
// the window's corner instead of on the control.
Rectangle {
    property bool pressed
    property bool focusRing
    radius: 4
    color: pressed ? Qt.rgba(0, 0, 0, 0.1) : "transparent"
    border.width: focusRing ? Theme.focusRingWidth : 0
    border.color: Theme.tint
}
