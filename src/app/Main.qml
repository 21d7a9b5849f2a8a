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

    // The share sheet and the alert dialog are made when first wanted: most launches show neither.
    property QtObject shareSheet: null
    property QtObject alertDialog: null
    Component {
        id: shareSheetComponent
        ShareSheet {}
    }
    Component {
        id: alertDialogComponent
        AlertDialog {
            anchors.centerIn: parent
        }
    }
    function makeShareSheet() {
        if (Sharing.showing && !shareSheet)
            shareSheet = shareSheetComponent.createObject(window)
    }
    function makeAlertDialog() {
        if (Alerts.showing && !alertDialog)
            alertDialog = alertDialogComponent.createObject(window)
    }
    Connections {
        target: Sharing
        function onShowingChanged() { window.makeShareSheet() }
    }
    Connections {
        target: Alerts
        function onCurrentChanged() { window.makeAlertDialog() }
    }
    Component.onCompleted: {
        Device.windowSize = Qt.size(width, height)
        makeAlertDialog() // an alert raised while the window was being built
    }
}
