pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The page reader: heading, date and page text over the reader's wallpaper.
ScreenPanel {
    id: root
    objectName: "View"
    title: controller.title

    ViewController { id: controller }
    // The page list builds its reader ahead of the tap (Main.qml): the page loads when shown.
    property bool loaded: false
    StackView.onActivating: {
        if (!loaded) {
            loaded = true
            controller.viewDidLoad()
        }
    }

    Connections {
        target: controller
        function onFavoriteCheckStateRequested(checkState: int, animated: bool) {
            favoriteBox.setCheckState(checkState, animated)
        }
    }

    header: NavigationBar {
        title: controller.title
        onBackClicked: controller.BackToMain()
        ReadAloudButton {
            readAloud: controller.readAloud
            surface: surface
        }
        BarButton {
            objectName: "DoneButton"
            visible: surface.textView.activeFocus
            text: "Done"
            onClicked: surface.endEditing()
        }
        BarButton {
            objectName: "SaveButton"
            text: qsTr("Save")
            onClicked: {
                surface.endEditing()
                controller.SavePoem()
            }
        }
    }

    background: Rectangle { color: Theme.readerBackground }

    ReaderSurface {
        id: surface
        objectName: "scroller"
        anchors.fill: parent
        appearance: controller.appearance
        accessibleName: controller.title
        text: controller.PoemPrayerText
        onSizeStepRequested: direction => fontSizeStepper.step(direction)
        onPinched: scale => controller.HandlePinch(scale)
        textView.onTextChanged: controller.PoemPrayerText = surface.text
    }

    PageTurner {
        anchors.fill: surface
        surface: surface
        reader: controller
    }

    footer: BottomBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 4
            anchors.rightMargin: 4
            spacing: 2
            FavoriteBox {
                id: favoriteBox
                onValueChanged: checkState => controller.CheckBoxChecked(checkState)
            }
            Item { Layout.fillWidth: true }
            FontSizeStepper {
                id: fontSizeStepper
                objectName: "FontSizeStepper"
                value: controller.appearance.ReaderFontSize
                onStepped: value => controller.ChangeFontSize(value)
            }
            Item { Layout.fillWidth: true }
            BarButton {
                objectName: "SharePoemButton"
                text: qsTr("Text")
                Accessible.name: qsTr("Send as text message")
                onClicked: controller.SharePoem()
            }
            BarButton {
                objectName: "FacebookShareButton"
                text: qsTr("Share")
                onClicked: controller.FacebookShare()
            }
        }
    }
}
