pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The cover's drop-down menu: the list buttons, then the buttons of the other screens.
Flickable {
    id: menu
    objectName: "MenuScroller"
    required property CoverViewController cover
    // Made closed, then following the cover: the first opening slides as every other.
    property bool open: false
    Component.onCompleted: open = Qt.binding(() => menu.cover.menuOpen)
    contentHeight: menuButtons.height + 24
    // the closed menu's buttons still take their room; only an open menu scrolls
    interactive: open && contentHeight > height
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
        spacing: menu.open ? 10 : 0
        Behavior on spacing { NumberAnimation { duration: 300; easing.type: Easing.InOutQuad } }

        readonly property bool listReady: Navigator.canPerform("PoemPrayerSegue")

        MenuButton {
            id: todayButton
            objectName: "TodayButton"
            width: parent.width
            shown: menu.open
            onFocusedByKeyboard: item => menu.reveal(item)
            text: "Today"
            enabled: menuButtons.listReady
            onClicked: menu.cover.TodayButtonClicked()
        }
        MenuButton {
            objectName: "GoodMorningButton"
            width: parent.width
            shown: menu.open
            onFocusedByKeyboard: item => menu.reveal(item)
            text: "Good Morning"
            enabled: menuButtons.listReady
            onClicked: menu.cover.GoodMorningButtonClicked()
        }
        MenuButton {
            objectName: "GoodNightButton"
            width: parent.width
            shown: menu.open
            onFocusedByKeyboard: item => menu.reveal(item)
            text: "Good Night"
            enabled: menuButtons.listReady
            onClicked: menu.cover.GoodNightButtonClicked()
        }
        MenuButton {
            id: favoritesButton
            objectName: "FavoritesButton"
            width: parent.width
            shown: menu.open
            onFocusedByKeyboard: item => menu.reveal(item)
            text: qsTr("Favorites")
            enabled: menuButtons.listReady
            onClicked: menu.cover.FavoriteButtonClicked()
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
                shown: menu.open
                       && !(modelData.outlet === "ImportExportButton" && menu.cover.ImportExportButtonHidden)
                enabled: Navigator.canPerform(modelData.segue)
                onClicked: {
                    if (modelData.outlet === "RateShareButton")
                        menu.cover.RateShareButtonClicked()
                    Navigator.performSegue(modelData.segue)
                }
            }
        }
    }
}
