pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The search reader: the chosen page with every match of the search text marked in yellow.
ScreenPanel {
    id: root
    objectName: "SearchView"
    title: controller.title
    property bool revealed: false

    SearchViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    // Once on screen and laid out, the first match is brought into view.
    StackView.onActivated: {
        if (!revealed)
            revealMatch()
        revealed = true
    }
    function revealMatch() {
        if (controller.firstMatchPosition < 0)
            return
        const match = surface.textView.positionToRectangle(controller.firstMatchPosition)
        const top = match.y * controller.appearance.zoom
        surface.contentY = Math.max(0, Math.min(top - surface.height / 3, surface.contentHeight - surface.height))
    }

    Connections {
        target: controller
        function onFavoriteCheckStateRequested(checkState: int, animated: bool) {
            favoriteBox.setCheckState(checkState, animated)
        }
    }

    header: NavigationBar {
        title: controller.title
        onBackClicked: Navigator.unwind("unwindSegue")
        ReadAloudButton {
            readAloud: controller.readAloud
            surface: surface
        }
    }

    // The text lies clear over the screen's own white, not the other readers' grey.
    background: Rectangle { color: "white" }

    ReaderSurface {
        id: surface
        objectName: "scroller"
        anchors.fill: parent
        appearance: controller.appearance
        accessibleName: controller.title
        phoneFrame: controller.deviceid === 1
        readOnly: true
        textFormat: TextEdit.RichText
        text: controller.PoemPrayerText
        onSizeStepRequested: direction => direction > 0 ? controller.IncreaseFontSize() : controller.DecreaseFontSize()
        onPinched: scale => controller.HandlePinch(scale)
    }

    footer: BottomBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 4
            anchors.rightMargin: 4
            spacing: 2
            FavoriteBox {
                id: favoriteBox
                onValueChanged: checkState => controller.FavoriteCheckBoxChecked(checkState)
            }
            Item { Layout.fillWidth: true }
            FontSizeStepper {
                objectName: "FontSizeStepper"
                value: controller.appearance.ReaderFontSize
                onStepped: value => controller.FontSizeChanged(value)
            }
            Item { Layout.fillWidth: true }
            BarButton {
                objectName: "ShareButton"
                text: qsTr("Share")
                Accessible.name: qsTr("Share the page")
                onClicked: controller.ShareButtonClicked()
            }
        }
    }
}
