pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Larkwells

// The page reader: heading, date and page text over the reader's wallpaper.
Page {
    id: root
    objectName: "View"
    title: controller.title

    ViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()

    Connections {
        target: controller
        function onFavoriteCheckStateRequested(checkState: int, animated: bool) {
            favoriteCheckBox.setCheckState(checkState, animated)
        }
    }

    header: NavigationBar {
        title: controller.title
        onBackClicked: controller.BackToMain()
        ToolButton {
            objectName: "DoneButton"
            visible: poemPrayerTextView.activeFocus
            text: qsTr("Done")
            font.pixelSize: 17
            font.capitalization: Font.MixedCase
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: poemPrayerTextView.focus = false
        }
        ToolButton {
            objectName: "SaveButton"
            text: qsTr("Save")
            font.pixelSize: 17
            font.capitalization: Font.MixedCase
            Accessible.name: qsTr("Save")
            Accessible.onPressAction: clicked()
            onClicked: {
                poemPrayerTextView.focus = false
                controller.SavePoem()
            }
        }
    }

    background: Rectangle { color: "lightgrey" }

    Flickable {
        id: scroller
        objectName: "scroller"
        anchors.fill: parent
        contentWidth: width
        contentHeight: Math.max(height, poemPrayerTextView.implicitHeight * controller.zoom)
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        // The wallpaper runs behind the whole text, however long.
        Image {
            objectName: "img"
            width: scroller.width
            height: scroller.contentHeight
            source: controller.wallpaper
            fillMode: Image.PreserveAspectCrop
            sourceSize.width: Math.min(1600, scroller.width * Screen.devicePixelRatio)
            asynchronous: true
            visible: status === Image.Ready
        }

        TextArea {
            id: poemPrayerTextView
            objectName: "PoemPrayerTextView"
            width: scroller.width
            scale: controller.zoom
            transformOrigin: Item.Top
            z: 1
            text: controller.PoemPrayerText
            onTextChanged: controller.PoemPrayerText = text
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            horizontalAlignment: controller.styled ? TextEdit.AlignHCenter : TextEdit.AlignLeft
            color: controller.textColor
            font.family: controller.styled ? controller.FontName : Qt.application.font.family
            font.pixelSize: controller.fontSize
            topPadding: 8
            bottomPadding: 48
            leftPadding: 20
            rightPadding: 20
            selectByMouse: true
            background: null
            Accessible.role: Accessible.EditableText
            Accessible.name: controller.title
            Accessible.description: text
        }

        TapHandler {
            onTapped: poemPrayerTextView.focus = false
        }
        PinchHandler {
            target: null
            property real lastScale: 1
            onActiveChanged: lastScale = 1
            onActiveScaleChanged: {
                controller.HandlePinch(activeScale / lastScale)
                lastScale = activeScale
            }
        }
    }

    footer: ToolBar {
        Material.background: Qt.hsva(0.5, 0.06, 0.96, 1)
        Material.foreground: "black"
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            spacing: 6
            M13Checkbox {
                id: favoriteCheckBox
                objectName: "FavoriteCheckBox"
                implicitWidth: 30
                implicitHeight: 30
                Accessible.name: qsTr("Favorite")
                onValueChanged: controller.CheckBoxChecked(checkState)
            }
            Label {
                text: qsTr("Fav")
                font.pixelSize: 16
            }
            Item { Layout.fillWidth: true }
            RowLayout {
                id: fontSizeStepper
                objectName: "FontSizeStepper"
                spacing: 0
                property real value: controller.ReaderFontSize
                readonly property real minimum: 8
                readonly property real maximum: 72
                function step(by: real) {
                    const next = Math.max(minimum, Math.min(maximum, value + by))
                    if (next !== value)
                        controller.ChangeFontSize(next)
                }
                ToolButton {
                    objectName: "FontSmallerButton"
                    text: "A−"
                    font.pixelSize: 15
                    enabled: fontSizeStepper.value > fontSizeStepper.minimum
                    Accessible.name: qsTr("Smaller text")
                    Accessible.onPressAction: clicked()
                    onClicked: fontSizeStepper.step(-1)
                }
                ToolButton {
                    objectName: "FontLargerButton"
                    text: "A+"
                    font.pixelSize: 19
                    enabled: fontSizeStepper.value < fontSizeStepper.maximum
                    Accessible.name: qsTr("Larger text")
                    Accessible.onPressAction: clicked()
                    onClicked: fontSizeStepper.step(1)
                }
            }
            Item { Layout.fillWidth: true }
            ToolButton {
                objectName: "SharePoemButton"
                text: qsTr("Text")
                font.pixelSize: 16
                font.capitalization: Font.MixedCase
                Accessible.name: qsTr("Send as text message")
                Accessible.onPressAction: clicked()
                onClicked: controller.SharePoem()
            }
            ToolButton {
                objectName: "FacebookShareButton"
                text: qsTr("Share")
                font.pixelSize: 16
                font.capitalization: Font.MixedCase
                Accessible.name: qsTr("Share")
                Accessible.onPressAction: clicked()
                onClicked: controller.FacebookShare()
            }
        }
    }
}
