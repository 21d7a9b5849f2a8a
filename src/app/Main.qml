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
        onBusyChanged: {
            if (busy)
                return
            window.settle()
            // Back at the cover: what the closed screens held goes back to the system.
            if (depth === 1)
                Device.releaseUnusedMemory()
        }
        onDepthChanged: if (!busy) window.settle()
    }

    // The screen the top screen most likely opens next (its `likelySegue`), built in the frames
    // the reader spends looking at it. Such a screen loads its content when it is shown, and it
    // is ours to destroy once it has left the stack.
    property Item aheadScreen: null
    property string aheadPage
    property var shownAhead: []
    Item {
        id: aheadHolder
        visible: false
    }
    function settle() {
        window.shownAhead = window.shownAhead.filter(screen => {
            if (stack.find(item => item === screen))
                return true
            screen.destroy()
            return false
        })
        const top = stack.get(stack.depth - 1, StackView.DontLoad)
        const page = top && top.likelySegue ? Navigator.pageFor(top.likelySegue) : ""
        if (page && page !== window.aheadPage)
            window.buildAhead(page)
    }
    function buildAhead(page: string) {
        if (window.aheadScreen)
            window.aheadScreen.destroy()
        window.aheadScreen = null
        window.aheadPage = page
        window.buildLater(page, aheadHolder, () => window.aheadPage === page, screen => window.aheadScreen = screen)
    }
    // Compiles and builds the component at `url` in the frames to come, never holding one up;
    // `take` gets the object while `wanted` still holds, else it is destroyed. A component that
    // cannot be built hands `take` null (with a warning), so that a later wish can try again.
    function buildLater(url: string, parent: QtObject, wanted, take) {
        const component = Qt.createComponent(url, Component.Asynchronous)
        const failed = reason => {
            console.warn("cannot build " + url + ": " + reason)
            take(null)
        }
        // The window may be gone (closed while a build was under way).
        const incubate = () => {
            if (!window || component.status === Component.Loading || !wanted())
                return
            if (component.status !== Component.Ready) {
                failed(component.errorString())
                return
            }
            const incubator = component.incubateObject(parent, {}, Qt.Asynchronous)
            incubator.onStatusChanged = status => {
                if (status === Component.Error)
                    failed("its object could not be made")
                if (status !== Component.Ready)
                    return
                if (window && wanted())
                    take(incubator.object)
                else
                    incubator.object.destroy()
            }
        }
        if (component.status === Component.Loading)
            component.statusChanged.connect(incubate)
        else
            incubate()
    }

    Connections {
        target: Navigator
        function onSegueRequested(identifier: string, page: string) {
            if (window.aheadScreen && window.aheadPage === page) {
                const screen = window.aheadScreen
                window.aheadScreen = null
                window.aheadPage = ""
                window.shownAhead = window.shownAhead.concat([screen])
                stack.push(screen)
            } else {
                stack.push(page)
            }
        }
        function onUnwindRequested(identifier: string) {
            // Back to the nearest screen that accepts this unwind, which then hears of it. A
            // screen already shown stays (a second alert's OK after the first has gone back).
            for (let i = stack.depth - 1; i >= 0; --i) {
                const screen = stack.get(i, StackView.DontLoad)
                if (screen && screen.unwindTargets && screen.unwindTargets.indexOf(identifier) >= 0) {
                    stack.pop(screen)
                    screen.unwind(identifier)
                    return
                }
            }
            // Reached another way (the about file screen from the export menu): the screen gives
            // way to the one the unwind is for, freshly made.
            const page = Navigator.unwindPage(identifier)
            if (page)
                stack.replace(page)
            else
                stack.pop()
        }
        function onPopToRootRequested() {
            stack.pop(null)
        }
    }

    // The share sheet and the alert dialog are made, and even compiled, when first wanted: most
    // launches show neither. The dialog is built between frames, and not before the window's
    // first frame, so the screen under it (the cover, on a first launch) is not held up; it opens
    // faded out in any case.
    property QtObject shareSheet: null
    property QtObject alertDialog: null
    property bool alertDialogComing: false
    property bool firstFrameShown: false
    function makeShareSheet() {
        if (Sharing.showing && !shareSheet)
            shareSheet = Qt.createComponent("../platform/ShareSheet.qml").createObject(window)
    }
    function makeAlertDialog() {
        if (!Alerts.showing || alertDialog || alertDialogComing || !firstFrameShown)
            return
        alertDialogComing = true
        buildLater("../platform/AlertDialog.qml", window, () => true, dialog => {
            window.alertDialog = dialog
            window.alertDialogComing = false
        })
    }
    Connections {
        target: Sharing
        function onShowingChanged() { window.makeShareSheet() }
    }
    Connections {
        target: Alerts
        function onCurrentChanged() { window.makeAlertDialog() }
    }
    Connections {
        target: window
        enabled: !window.firstFrameShown
        function onFrameSwapped() {
            window.firstFrameShown = true
            window.makeAlertDialog() // an alert raised while the window was being built
        }
    }
    Component.onCompleted: Device.windowSize = Qt.size(width, height)
}
