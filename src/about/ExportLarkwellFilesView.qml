pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Larkwells

// The export menu: one button for each kind of update file, and the reader's own writing backed
// up to a file or restored from one.
ScreenPanel {
    id: root
    objectName: "ExportLarkwellFilesView"
    title: qsTr("Update Files")

    ExportLarkwellFilesViewController { id: controller }

    Connections {
        target: controller
        function onDocumentPickerRequested() { documentPicker.open() }
    }

    FileDialog {
        id: documentPicker
        objectName: "documentPicker"
        title: qsTr("Choose a Backup of Your Writing")
        fileMode: FileDialog.OpenFile
        currentFolder: Sharing.documentsFolder
        nameFilters: [qsTr("Backups (*.json)"), qsTr("All files (*)")]
        onAccepted: controller.documentPicker(selectedFile)
    }

    header: NavigationBar {
        title: root.title
        onBackClicked: root.StackView.view.pop()
    }
    background: Rectangle { color: Theme.readerBackground }

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 360)
        spacing: 16
        UpdateFileButton {
            objectName: "PoemPrayerButton"
            Layout.fillWidth: true
            text: qsTr("Pages")
            focus: true
            onClicked: controller.PoemPrayerButtonClicked()
        }
        UpdateFileButton {
            objectName: "SpecialDaysButton"
            Layout.fillWidth: true
            text: "Special Days"
            onClicked: controller.SpecialDaysButtonClicked()
        }
        UpdateFileButton {
            objectName: "AboutButton"
            Layout.fillWidth: true
            text: "About"
            onClicked: controller.AboutButtonClicked()
        }
        UpdateFileButton {
            objectName: "BackUpButton"
            Layout.fillWidth: true
            Layout.topMargin: 16
            text: qsTr("Back Up My Writing")
            onClicked: controller.BackUpButtonClicked()
        }
        UpdateFileButton {
            objectName: "RestoreButton"
            Layout.fillWidth: true
            text: qsTr("Restore My Writing…")
            onClicked: controller.RestoreButtonClicked()
        }
    }
}
