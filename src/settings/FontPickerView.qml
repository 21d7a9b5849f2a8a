pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The one font picker of the screen: the installed families, each drawn in its own face, with
// a filter on top. Type to filter, Down to reach the list, Enter to choose, Escape to leave.
Popup {
    id: picker
    required property DefaultsViewController defaults
    // The field being edited, shown on top and read out as the picker's name.
    property string title

    modal: true
    Component.onCompleted: ModalPopups.watch(picker)
    focus: true
    padding: 12
    anchors.centerIn: Overlay.overlay
    width: Math.min(parent ? parent.width - 32 : 400, 440)
    height: Math.min(parent ? parent.height - 64 : 560, 600)

    onOpened: {
        picker.defaults.fontFilter = ""
        fonts.positionViewAtIndex(Math.max(0, picker.defaults.selectedPickerRow), ListView.Center)
        fonts.currentIndex = picker.defaults.selectedPickerRow
        filter.forceActiveFocus()
    }
    onClosed: picker.defaults.dismissKeyboard()

    background: Rectangle {
        color: "white"
        radius: Theme.cornerRadius
        border.color: Theme.border
    }

    function choose(row: int) {
        if (row < 0)
            return
        picker.defaults.didSelectRow(row)
        close()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 8
        Heading {
            Layout.fillWidth: true
            text: picker.title
            horizontalAlignment: Text.AlignHCenter
        }
        TextField {
            id: filter
            objectName: "FontFilterField"
            Layout.fillWidth: true
            placeholderText: qsTr("Filter fonts")
            text: picker.defaults.fontFilter
            onTextEdited: picker.defaults.fontFilter = text
            Accessible.name: qsTr("Filter fonts")
            Keys.onDownPressed: {
                fonts.currentIndex = Math.max(0, fonts.currentIndex)
                fonts.forceActiveFocus()
            }
            Keys.onReturnPressed: picker.choose(fonts.count === 1 ? 0 : fonts.currentIndex)
            Keys.onEnterPressed: picker.choose(fonts.count === 1 ? 0 : fonts.currentIndex)
        }
        ListView {
            id: fonts
            objectName: "FontPickerView"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            // Rows are drawn in their own faces: a closed picker loads none of them.
            model: picker.visible ? picker.defaults.FontPickerRows : []
            keyNavigationEnabled: true
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Fonts")
            Keys.onReturnPressed: picker.choose(currentIndex)
            Keys.onEnterPressed: picker.choose(currentIndex)
            Keys.onSpacePressed: picker.choose(currentIndex)
            Keys.onUpPressed: event => {
                if (currentIndex <= 0)
                    filter.forceActiveFocus()
                else
                    event.accepted = false
            }
            delegate: ItemDelegate {
                id: row
                required property string modelData
                required property int index
                objectName: "font-" + modelData
                width: fonts.width
                height: Math.max(Theme.touchTarget, implicitHeight)
                focusPolicy: Qt.NoFocus
                highlighted: index === picker.defaults.selectedPickerRow
                contentItem: Label {
                    text: row.modelData
                    color: "black"
                    font.family: row.modelData
                    font.pixelSize: 18
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    Accessible.ignored: true // the row's name says it
                }
                background: Rectangle {
                    color: row.highlighted ? Theme.tintPressed : (row.down ? Theme.cellPressedColor : "transparent")
                    border.width: row.ListView.isCurrentItem && fonts.activeFocus ? Theme.focusRingWidth : 0
                    border.color: Theme.tint
                    radius: 4
                }
                Accessible.name: modelData
                Accessible.selected: highlighted
                Accessible.ignored: !visible
                Accessible.onPressAction: if (row.visible && row.enabled) picker.choose(row.index)
                onClicked: picker.choose(index)
            }
            Label {
                anchors.centerIn: parent
                visible: fonts.count === 0
                text: qsTr("No font matches")
                color: Theme.quietText
            }
        }
    }
}
