pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The article screen: one about article in the reader's look, to read, resize, edit and share.
ScreenPanel {
    id: root
    objectName: "AboutEditView"
    title: controller.title

    AboutEditViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()

    header: NavigationBar {
        title: controller.title
        onBackClicked: controller.BackToAboutMain()
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
                controller.SaveAboutItem()
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
        text: controller.AboutItemText
        textView.objectName: "AboutItemTextView"
        textView.horizontalAlignment: controller.appearance.styled && !controller.leftAligned
                                      ? TextEdit.AlignHCenter : TextEdit.AlignLeft
        onSizeStepRequested: direction => fontSizeStepper.step(direction)
        onPinched: scale => controller.HandlePinch(scale)
        textView.onTextChanged: controller.AboutItemText = surface.text
    }

    footer: BottomBar {
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 4
            anchors.rightMargin: 4
            spacing: 2
            Item { Layout.fillWidth: true }
            FontSizeStepper {
                id: fontSizeStepper
                objectName: "FontSizeStepper"
                value: controller.appearance.ReaderFontSize
                onStepped: value => controller.FontSizeChanged(value)
            }
            Item { Layout.fillWidth: true }
            BarButton {
                objectName: "ShareButton"
                text: qsTr("Share")
                onClicked: controller.ShareActions()
            }
        }
    }
}
