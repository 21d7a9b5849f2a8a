pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The note editor: subject, date and text, with the text's alignment chosen in a segment.
ScreenPanel {
    id: root
    objectName: "EditNotesView"
    title: qsTr("Note")

    EditNotesViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()

    // Typed as a plain object by the linter of Qt 6.4, so held untyped.
    readonly property var keyboard: Qt.inputMethod

    function endEditing() {
        picker.close()
        root.forceActiveFocus()
        keyboard.hide()
    }
    function openPicker() {
        controller.DateEntered()
        picker.show(controller.datePickerView)
    }

    Connections {
        target: controller
        function onEndEditingRequested() { root.endEditing() }
        function onDismissRequested() { root.StackView.view.pop() }
    }

    header: NavigationBar {
        title: root.title
        onBackClicked: controller.BackButtonClicked()
        center: SegmentedControl {
            objectName: "segment"
            anchors.centerIn: parent
            model: controller.segmentTitles
            currentIndex: controller.segmentIndex
            segmentWidth: Math.floor(Math.min(80, (root.width - 150) / 3))
            onActivated: index => controller.segmentedControlAction(index)
        }
        BarButton {
            id: saveButton
            objectName: "SaveButton"
            text: qsTr("Save")
            onClicked: {
                root.endEditing()
                controller.SaveButtonClicked()
            }
        }
    }

    background: Rectangle {
        color: "white"
        TapHandler { onTapped: root.endEditing() }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        // The text being typed stays above an on-screen keyboard.
        anchors.bottomMargin: 12 + (root.keyboard.visible ? root.keyboard.keyboardRectangle.height : 0)
        spacing: 10

        TextField {
            id: subjectField
            objectName: "SubjectTextField"
            Layout.fillWidth: true
            placeholderText: qsTr("Subject")
            text: controller.SubjectTextField
            onTextEdited: controller.SubjectTextField = text
            Accessible.name: qsTr("Subject")
        }

        // The focus scope is the field's face: a screen reader hears a combo box with the date as
        // its value, where the read-only text field inside would keep its own editable-text role.
        FocusScope {
            id: dateField
            objectName: "DateTextField"
            readonly property alias text: dateText.text
            Layout.fillWidth: true
            implicitHeight: dateText.implicitHeight
            activeFocusOnTab: true
            Accessible.role: Accessible.ComboBox
            Accessible.name: qsTr("Date") + ", " + text
            Accessible.focusable: true
            Accessible.onPressAction: root.openPicker()
            Keys.onReturnPressed: root.openPicker()
            Keys.onEnterPressed: root.openPicker()
            Keys.onSpacePressed: root.openPicker()
            TextField {
                id: dateText
                anchors.fill: parent
                readOnly: true
                activeFocusOnPress: false
                activeFocusOnTab: false
                text: controller.DateTextField
                Accessible.ignored: true
            }
            // Focused, it is underlined as a focused text field is.
            Rectangle {
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.bottomMargin: dateText.bottomPadding - 8
                height: 2
                color: Theme.tint
                visible: dateField.activeFocus
            }
            MouseArea {
                // A read-only field takes no taps of its own: a tap opens the picker.
                anchors.fill: parent
                onClicked: {
                    dateField.forceActiveFocus()
                    root.openPicker()
                }
            }
        }

        ScrollView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            TextArea {
                objectName: "NotesTextView"
                placeholderText: qsTr("Note")
                text: controller.NotesTextView
                wrapMode: TextEdit.Wrap
                horizontalAlignment: controller.alignment
                font.pixelSize: 17
                onTextChanged: if (text !== controller.NotesTextView) controller.NotesTextView = text
                Accessible.name: qsTr("Note text")
                // Tab leaves the text rather than typing a tab.
                KeyNavigation.priority: KeyNavigation.BeforeItem
                KeyNavigation.tab: saveButton
                KeyNavigation.backtab: dateField
            }
        }
    }

    NoteDatePicker {
        id: picker
        objectName: "datePickerView"
        title: qsTr("Date")
        // Docked as a keyboard is: the bar's Save and Back, and the fields, take a tap at once
        // (closing the picker as they do), where a modal picker would only close on it.
        modal: false
        parent: Overlay.overlay
        width: parent.width
        y: parent.height - height
        onPicked: shown => controller.dateChanged(shown.getFullYear(), shown.getMonth() + 1, shown.getDate())
        onDoneClicked: shown => controller.doneClick(shown.getFullYear(), shown.getMonth() + 1, shown.getDate())
        onTodayClicked: controller.todayClick()
        onClosed: dateField.forceActiveFocus()
    }
}
