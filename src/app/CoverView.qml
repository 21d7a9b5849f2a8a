pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The cover of the book with its drop-down menu.
ScreenPanel {
    id: root
    objectName: "CoverView"
    title: qsTr("The Larkwells Book")
    // Unwinding to the cover (from the about list) needs nothing more here.
    readonly property var unwindTargets: ["unwindSegue"]
    function unwind(identifier: string) {}

    CoverViewController { id: controller }
    // The size in pixels the picture shown was drawn at.
    property size drawnSize
    // The picture's size in pixels for the window as it is now.
    function pictureSize() {
        const window = root.Window.window
        return controller.coverPixelSize(window ? window.width : Screen.width, window ? window.height : Screen.height,
                                         Screen.devicePixelRatio)
    }
    Component.onCompleted: {
        drawnSize = pictureSize()
        img.sourceSize = drawnSize // for the vector cover, when no picture can be kept
        controller.prepareCover(drawnSize, Screen.devicePixelRatio)
        controller.viewDidLoad()
    }
    // A window grown past what the picture was drawn for has it drawn again, once the resizing
    // stops; a smaller one scales the picture down.
    onWidthChanged: regrow.restart()
    onHeightChanged: regrow.restart()
    Timer {
        id: regrow
        interval: 300
        onTriggered: {
            const size = root.pictureSize()
            if (size.width <= root.drawnSize.width)
                return
            root.drawnSize = size
            controller.redrawCover(size, Screen.devicePixelRatio)
        }
    }
    StackView.onActivating: controller.viewWillAppear()
    Connections {
        id: firstShown
        target: root.Window.window
        function onFrameSwapped() {
            firstShown.enabled = false
            controller.viewDidAppear()
        }
    }
    StackView.onDeactivating: controller.viewWillDisappear()

    background: Rectangle { color: "#132036" } // the colour the cover fades into at its edges

    Image {
        id: img
        objectName: "img"
        // Filled (sides cropped) on a portrait screen, whole on a wide one. The geometry, not
        // the fill mode, does it, so the picture is drawn from its file only once.
        readonly property size natural: Qt.size(1200, 1800)
        readonly property real coverScale: root.width <= root.height
            ? Math.max(root.width / natural.width, root.height / natural.height)
            : Math.min(root.width / natural.width, root.height / natural.height)
        // Centred on whole pixels, at the size in pixels the picture is drawn at: it is copied to
        // the screen as it is, never resampled, which would blur it and cost every frame.
        readonly property real pixelRatio: Screen.devicePixelRatio
        width: Math.round(natural.width * coverScale * pixelRatio) / pixelRatio
        height: Math.round(natural.height * coverScale * pixelRatio) / pixelRatio
        x: Math.round((root.width - width) / 2 * pixelRatio) / pixelRatio
        y: Math.round((root.height - height) / 2 * pixelRatio) / pixelRatio
        source: controller.coverSource
        // Drawn once for the window the book opens in (set once the page is made), and kept for
        // later launches.
        smooth: true
        mipmap: true
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("The Larkwells Book cover")
    }

    Button {
        id: controlButton
        objectName: "ControlButton"
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: 16
        width: 56
        height: 48
        text: controller.menuOpen ? "✕" : "☰"
        font.pixelSize: 24
        contentItem: Label {
            text: controlButton.text
            font: controlButton.font
            color: "black"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
        background: Rectangle {
            radius: Theme.cornerRadius
            border.width: controlButton.visualFocus ? Theme.borderWidth + 1 : Theme.borderWidth
            border.color: controlButton.visualFocus ? Theme.tint : "black"
            color: controlButton.down ? Theme.cellPressedColor : Theme.cellColor
        }
        Accessible.name: controller.menuOpen ? qsTr("Close menu") : qsTr("Menu")
        // Under another screen the cover is hidden, and so is its button.
        Accessible.ignored: !visible
        Accessible.onPressAction: if (controlButton.visible) controlButton.clicked()
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        onClicked: controller.HandleSelection()
    }

    // The menu is made when first opened: most launches read a page and never open it.
    Loader {
        id: menuLoader
        // Centred on a portrait screen; on a wide one, beside the whole picture so its title
        // stays in view.
        readonly property bool wide: root.width > root.height
        anchors.top: controlButton.bottom
        anchors.topMargin: 12
        anchors.bottom: parent.bottom
        x: wide ? root.width - width - 16 : (root.width - width) / 2
        width: wide ? Math.max(200, Math.min(320, (root.width - img.width) / 2 - 32))
                    : Math.min(root.width - 32, 320)
    }
    Connections {
        target: controller
        function onMenuOpenChanged() {
            if (menuLoader.status === Loader.Null)
                menuLoader.setSource("CoverMenu.qml", { cover: controller })
        }
    }
}
