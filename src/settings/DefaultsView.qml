pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The "User Defaults" screen: fonts, sizes, text colour and wallpapers of readers and lists.
// The font fields show each choice at once, in its face and at its size.
ScreenPanel {
    id: root
    objectName: "DefaultsView"
    title: controller.title

    DefaultsViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()

    header: NavigationBar {
        title: controller.title
        // While the picker is open, Escape belongs to it.
        showBack: !fontPicker.opened
        onBackClicked: root.StackView.view.pop()
    }

    background: Rectangle { color: "white" }

    // A caption for the control beside it.
    component Caption: Label {
        Layout.preferredWidth: 96
        color: "black"
        font.pixelSize: 16
        wrapMode: Text.Wrap
    }
    component SectionTitle: Heading {
        Layout.fillWidth: true
        Layout.topMargin: 12
    }
    component SizeField: TextField {
        Layout.preferredWidth: 72
        readOnly: true
        activeFocusOnTab: false
        Accessible.ignored: true // the stepper beside it carries the size
        horizontalAlignment: TextInput.AlignHCenter
        color: "black"
        font.pixelSize: 17
    }
    component WallpaperButton: Button {
        id: button
        Layout.fillWidth: true
        Layout.preferredWidth: 1 // the two share the row evenly
        Layout.preferredHeight: Theme.touchTarget + 8
        leftPadding: 6
        rightPadding: 6
        font.pixelSize: 15
        font.capitalization: Font.MixedCase
        Accessible.name: text
        Accessible.ignored: !visible
        Accessible.onPressAction: if (button.visible && button.enabled) button.clicked()
        contentItem: Label {
            text: button.text
            font: button.font
            color: "black"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            Accessible.ignored: true // the button carries the text
        }
        background: Rectangle {
            radius: Theme.cornerRadius
            border.width: button.visualFocus ? Theme.borderWidth + 1 : Theme.borderWidth
            border.color: button.visualFocus ? Theme.tint : Theme.border
            color: button.down ? Theme.cellPressedColor : Theme.cellColor
        }
    }

    Flickable {
        id: scroller
        anchors.fill: parent
        contentHeight: column.implicitHeight + 32
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        ScrollBar.vertical: ScrollBar {}

        TapHandler {
            onTapped: controller.dismissKeyboard()
        }

        // Keeps the control the keyboard moved to in view.
        function reveal(item: Item) {
            let inside = item
            while (inside && inside !== column)
                inside = inside.parent
            if (!inside)
                return
            const box = item.mapToItem(scroller.contentItem, 0, 0, item.width, item.height)
            if (box.y - 8 < contentY)
                contentY = Math.max(0, box.y - 8)
            else if (box.y + box.height + 8 > contentY + height)
                contentY = Math.min(contentHeight - height, box.y + box.height + 8 - height)
        }
        Connections {
            target: root.Window.window
            function onActiveFocusItemChanged() { scroller.reveal(root.Window.activeFocusItem) }
        }

        ColumnLayout {
            id: column
            x: (scroller.width - width) / 2
            y: 8
            width: Math.min(scroller.width - 32, 560)
            spacing: 10

            SectionTitle { text: qsTr("Pages") }
            RowLayout {
                Caption { text: qsTr("Font") }
                FontField {
                    objectName: "FontListTextField"
                    Layout.fillWidth: true
                    label: qsTr("Page font")
                    text: controller.FontListText
                    fontFamily: controller.FontName
                    fontSize: controller.ReaderFontSize
                    onClicked: fontPicker.edit(DefaultsViewController.FontListTextField, label)
                }
            }
            RowLayout {
                Caption { text: qsTr("Text Size") }
                SizeField {
                    objectName: "ReaderFontSizeTextField"
                    text: controller.ReaderFontSizeText
                }
                Item { Layout.fillWidth: true }
                FontSizeStepper {
                    objectName: "ReaderStepper"
                    value: controller.ReaderFontSize
                    Accessible.name: qsTr("Page text size")
                    onStepped: value => controller.ReaderStepperChanged(value)
                }
            }
            // The colour segments get the whole width, so "Magenta" fits on a phone.
            Caption { text: qsTr("Text Color") }
            RowLayout {
                spacing: 10
                SegmentedControl {
                    id: colorSegment
                    objectName: "PoemViewerTextColorSegment"
                    Layout.fillWidth: true
                    model: controller.colorTitles
                    currentIndex: controller.colorSegmentIndex
                    segmentWidth: width / 4
                    fontSize: 14
                    onActivated: index => controller.PoemViewerSegmentChanged(index)
                }
                Rectangle {
                    objectName: "ColorLabel"
                    Layout.preferredWidth: 34
                    Layout.preferredHeight: 34
                    radius: 17
                    color: controller.ColorLabelColor
                    border.color: Theme.border
                    Accessible.role: Accessible.Graphic
                    Accessible.name: qsTr("Chosen colour: %1").arg(controller.colorTitles[controller.colorSegmentIndex])
                }
            }
            SettingSwitch {
                objectName: "PoemViewerWallpaperSwitch"
                Layout.fillWidth: true
                text: qsTr("Wallpaper behind pages")
                checked: controller.useWallpaper === 1
                onToggled: controller.PoemViewSwitchChanged(checked)
            }

            SettingSwitch {
                objectName: "NightReadingSwitch"
                Layout.fillWidth: true
                text: qsTr("Night Reading")
                checked: controller.NightReading
                onToggled: controller.NightReadingSwitchChanged(checked)
            }
            RowLayout {
                Caption { text: qsTr("Read Aloud Rate") }
                Slider {
                    id: rateSlider
                    objectName: "ReadAloudRateSlider"
                    Layout.fillWidth: true
                    from: -1
                    to: 1
                    stepSize: 0.1
                    snapMode: Slider.SnapAlways
                    value: controller.ReadAloudRate
                    Accessible.name: qsTr("Read Aloud Rate")
                    onMoved: controller.ReadAloudRateSliderChanged(value)
                }
                Label {
                    Layout.preferredWidth: 56
                    color: "black"
                    font.pixelSize: 15
                    text: rateSlider.value < -0.05 ? qsTr("Slower") : rateSlider.value > 0.05 ? qsTr("Faster") : qsTr("Normal")
                }
            }

            SectionTitle { text: qsTr("Lists") }
            RowLayout {
                Caption { text: qsTr("Font") }
                FontField {
                    objectName: "ListFontTextField"
                    Layout.fillWidth: true
                    label: qsTr("List font")
                    text: controller.ListFontText
                    fontFamily: controller.ListFontName
                    fontSize: controller.ListFontSize
                    onClicked: fontPicker.edit(DefaultsViewController.ListFontTextField, label)
                }
            }
            RowLayout {
                Caption { text: qsTr("Text Size") }
                SizeField {
                    objectName: "ListFontSizeTextField"
                    text: controller.ListFontSizeText
                }
                Item { Layout.fillWidth: true }
                FontSizeStepper {
                    objectName: "ListStepper"
                    value: controller.ListFontSize
                    Accessible.name: qsTr("List text size")
                    onStepped: value => controller.ListStepperChanged(value)
                }
            }
            SettingSwitch {
                objectName: "ListViewerWallpaperSwitch"
                Layout.fillWidth: true
                text: qsTr("Wallpaper behind list rows")
                checked: controller.ListWallpaperVisible === 1
                onToggled: controller.ListViewerSwitchChanged(checked)
            }

            SectionTitle { text: qsTr("Wallpapers") }
            RowLayout {
                spacing: 12
                WallpaperButton {
                    objectName: "AvailableWallpaperButton"
                    text: qsTr("Reader Wallpapers")
                    onClicked: controller.AvailableWallpaperButtonClicked()
                }
                WallpaperButton {
                    objectName: "ListWallpaperButton"
                    text: qsTr("List Wallpapers")
                    onClicked: controller.ListWallpaperButtonClicked()
                }
            }

            ReminderRows { Layout.fillWidth: true }
        }
    }

    FontPickerView {
        id: fontPicker
        objectName: "FontPicker"
        defaults: controller
        function edit(field: int, heading: string) {
            fontPicker.title = heading
            controller.beginEditing(field)
            open()
        }
    }
}
