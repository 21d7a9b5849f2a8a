pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The special-day reader: the morning or night heading, the day's name and its poem over the
// reader's wallpaper.
ScreenPanel {
    id: root
    objectName: "EditSpecialDaysView"
    title: controller.title

    EditSpecialDaysViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()

    header: NavigationBar {
        title: controller.title
        onBackClicked: controller.BackToSpecialDays()
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
                controller.SaveSpecialDays()
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
        phoneFrame: controller.deviceid === 1
        pictureOverhang: 100
        text: controller.PoemPrayerText
        onSizeStepRequested: direction => controller.StepFontSize(direction)
        onPinched: scale => controller.HandlePinch(scale)
        textView.onTextChanged: controller.PoemPrayerText = surface.text
    }

    footer: BottomBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 4
            anchors.rightMargin: 4
            Item { Layout.fillWidth: true }
            BarButton {
                objectName: "ShareButton"
                text: qsTr("Share")
                onClicked: controller.ShareActions()
            }
        }
    }
}
