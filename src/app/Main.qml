pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Larkwells

// The one window: a stack of screens starting at the cover, and the alert dialog.
ApplicationWindow {
    id: window
    width: 412
    height: 915
    minimumWidth: 320
    minimumHeight: 480
    visible: true
    title: qsTr("The Larkwells Book")
    Material.theme: Material.Light
    Material.accent: Theme.tint
    Material.primary: Theme.tint

    onWidthChanged: Device.windowSize = Qt.size(width, height)
    onHeightChanged: Device.windowSize = Qt.size(width, height)
    Component.onCompleted: Device.windowSize = Qt.size(width, height)

    StackView {
        id: stack
        objectName: "stack"
        anchors.fill: parent
        initialItem: CoverView {}
    }

    Connections {
        target: Navigator
        function onSegueRequested(identifier: string, page: string) {
            stack.push(page)
        }
        function onUnwindRequested(identifier: string) {
            // Back to the nearest screen below that accepts this unwind, which then hears of it.
            for (let i = stack.depth - 2; i >= 0; --i) {
                const screen = stack.get(i, StackView.DontLoad)
                if (screen && screen.unwindTargets && screen.unwindTargets.indexOf(identifier) >= 0) {
                    stack.pop(screen)
                    screen.unwind(identifier)
                    return
                }
            }
            // Reached another way (the about file screen from the export menu): back one screen.
            stack.pop()
        }
        function onPopToRootRequested() {
            stack.pop(null)
        }
    }

    ShareSheet {}

    AlertDialog {
        anchors.centerIn: parent
    }
}
