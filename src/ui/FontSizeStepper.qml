import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The text size stepper of every reader and of the settings: 8 to 48 points, one point a step.
// It shows `value` and asks for a new one through `stepped`; the screen decides what it means.
RowLayout {
    id: stepper
    property real value: 15
    readonly property real minimum: 8
    readonly property real maximum: 48
    readonly property real stepSize: 1
    signal stepped(real value)

    function step(direction: int) {
        const next = Math.max(minimum, Math.min(maximum, value + direction * stepSize))
        if (next !== value)
            stepped(next)
    }

    spacing: 0
    Accessible.role: Accessible.SpinBox
    Accessible.name: qsTr("Text size")
    Accessible.description: value.toFixed(1)

    BarButton {
        objectName: "FontSmallerButton"
        text: "A−"
        font.pixelSize: 15
        Layout.preferredWidth: Theme.touchTarget
        Layout.preferredHeight: Theme.touchTarget
        enabled: stepper.value > stepper.minimum
        Accessible.name: qsTr("Smaller text")
        onClicked: stepper.step(-1)
    }
    BarButton {
        objectName: "FontLargerButton"
        text: "A+"
        font.pixelSize: 19
        Layout.preferredWidth: Theme.touchTarget
        Layout.preferredHeight: Theme.touchTarget
        enabled: stepper.value < stepper.maximum
        Accessible.name: qsTr("Larger text")
        onClicked: stepper.step(1)
    }
}
