pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The cover of the book with its drop-down menu.
Page {
    id: root
    objectName: "CoverView"
    title: qsTr("The Larkwells Book")
    // Unwinding to the cover (from the about list) needs nothing more here.
    readonly property var unwindTargets: ["unwindSegue"]
    function unwind(identifier: string) {}

    CoverViewController { id: controller }
    Component.onCompleted: {
        controller.prepareCover(img.sourceSize, Screen.devicePixelRatio)
        controller.viewDidLoad()
    }
    StackView.onActivating: controller.viewWillAppear()
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
        anchors.centerIn: parent
        width: natural.width * coverScale
        height: natural.height * coverScale
        source: controller.coverSource
        // Drawn once, at the most the screen can show of it, and kept for later launches.
        readonly property real drawScale: Math.min(1, Math.max(Screen.width, Screen.height)
                                                       * Screen.devicePixelRatio / natural.height)
        sourceSize.width: Math.round(natural.width * drawScale)
        sourceSize.height: Math.round(natural.height * drawScale)
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
            border.width: Theme.borderWidth
            border.color: "black"
            color: controlButton.down ? Theme.cellPressedColor : Theme.cellColor
        }
        Accessible.name: controller.menuOpen ? qsTr("Close menu") : qsTr("Menu")
        Accessible.onPressAction: controlButton.clicked()
        onClicked: controller.HandleSelection()
    }

    Flickable {
        id: menu
        objectName: "MenuScroller"
        // Centred on a portrait screen; on a wide one, beside the whole picture so its title
        // stays in view.
        readonly property bool wide: root.width > root.height
        anchors.top: controlButton.bottom
        anchors.topMargin: 12
        anchors.bottom: parent.bottom
        x: wide ? root.width - width - 16 : (root.width - width) / 2
        width: wide ? Math.max(200, Math.min(320, (root.width - img.width) / 2 - 32))
                    : Math.min(root.width - 32, 320)
        contentHeight: menuButtons.height + 24
        // the closed menu's buttons still take their room; only an open menu scrolls
        interactive: controller.menuOpen && contentHeight > height
        clip: true
        // A menu taller than the screen shows that it scrolls.
        ScrollBar.vertical: ScrollBar {
            policy: menu.interactive ? ScrollBar.AlwaysOn : ScrollBar.AsNeeded
        }

        // Keyboard focus on a button out of view scrolls it in.
        function reveal(item: Item) {
            const top = item.mapToItem(menuButtons, 0, 0).y
            if (top < contentY)
                contentY = top
            else if (top + item.height > contentY + height)
                contentY = Math.min(contentHeight - height, top + item.height - height + 12)
        }

        Column {
            id: menuButtons
            objectName: "MenuButtons"
            width: parent.width - (menu.interactive ? 12 : 0) // room for the scroll bar
            spacing: controller.menuOpen ? 10 : 0
            Behavior on spacing { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }

            readonly property bool listReady: Navigator.canPerform("PoemPrayerSegue")

            MenuButton {
                id: todayButton
                objectName: "TodayButton"
                width: parent.width
                shown: controller.menuOpen
                onFocusedByKeyboard: item => menu.reveal(item)
                text: "Today"
                enabled: menuButtons.listReady
                onClicked: controller.TodayButtonClicked()
            }
            MenuButton {
                objectName: "GoodMorningButton"
                width: parent.width
                shown: controller.menuOpen
                onFocusedByKeyboard: item => menu.reveal(item)
                text: "Good Morning"
                enabled: menuButtons.listReady
                onClicked: controller.GoodMorningButtonClicked()
            }
            MenuButton {
                objectName: "GoodNightButton"
                width: parent.width
                shown: controller.menuOpen
                onFocusedByKeyboard: item => menu.reveal(item)
                text: "Good Night"
                enabled: menuButtons.listReady
                onClicked: controller.GoodNightButtonClicked()
            }
            MenuButton {
                id: favoritesButton
                objectName: "FavoritesButton"
                width: parent.width
                shown: controller.menuOpen
                onFocusedByKeyboard: item => menu.reveal(item)
                text: qsTr("Favorites")
                enabled: menuButtons.listReady
                onClicked: controller.FavoriteButtonClicked()
            }
            Repeater {
                // Buttons whose screens open through their own transitions.
                model: [
                    { outlet: "SpecialDaysButton", title: "Special Days", segue: "SpecialDaysSegue" },
                    { outlet: "SearchButton", title: qsTr("Search"), segue: "SearchSegue" },
                    { outlet: "NotesButton", title: "Notes", segue: "NotesSegue" },
                    { outlet: "AboutButton", title: "About", segue: "AboutSegue" },
                    { outlet: "UserDefaultsButton", title: "User Defaults", segue: "UserDefaultsSegue" },
                    { outlet: "RateShareButton", title: qsTr("Rate & Share"), segue: "SettingsSegue" },
                    { outlet: "ImportExportButton", title: qsTr("Import & Export"), segue: "ImportExportSegue" },
                    { outlet: "ResetButton", title: qsTr("Update Files"), segue: "ExportMenuSegue" }
                ]
                delegate: MenuButton {
                    required property var modelData
                    objectName: modelData.outlet
                    width: menuButtons.width
                    onFocusedByKeyboard: item => menu.reveal(item)
                    text: modelData.title
                    shown: controller.menuOpen
                           && !(modelData.outlet === "ImportExportButton" && controller.ImportExportButtonHidden)
                    enabled: Navigator.canPerform(modelData.segue)
                    onClicked: {
                        if (modelData.outlet === "RateShareButton")
                            controller.RateShareButtonClicked()
                        Navigator.performSegue(modelData.segue)
                    }
                }
            }
        }
    }
}
