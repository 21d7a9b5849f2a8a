pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Larkwells

// The about file screen: opens with the file picker in front; imports the picked file in place
// of every article, or writes the articles as a file to mail.
ScreenPanel {
    id: root
    objectName: "AboutImportView"
    title: qsTr("About File")

    AboutImportViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    // The chooser belongs to the window, not to this screen: it must not stay behind it.
    StackView.onDeactivating: documentPicker.close()

    Connections {
        target: controller
        function onDocumentPickerRequested() { documentPicker.open() }
    }

    FileDialog {
        id: documentPicker
        objectName: "documentPicker"
        title: qsTr("Choose an About File")
        fileMode: FileDialog.OpenFile
        currentFolder: Sharing.documentsFolder
        nameFilters: [qsTr("All files (*)")]
        onAccepted: controller.documentPicker(selectedFile)
    }

    header: NavigationBar {
        title: root.title
        onBackClicked: root.StackView.view.pop()
    }
    background: Rectangle { color: Theme.readerBackground }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        GridLayout {
            Layout.fillWidth: true
            // Side by side where the titles fit on one line, else one above the other.
            columns: root.width < 520 ? 1 : 3
            rowSpacing: 8
            columnSpacing: 8
            UpdateFileButton {
                objectName: "ImportButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: qsTr("Import")
                enabled: controller.ImportButtonEnabled
                onClicked: controller.ImportButtonClicked()
            }
            UpdateFileButton {
                objectName: "ExportButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: qsTr("Export")
                enabled: controller.ExportButtonEnabled
                onClicked: controller.CreateExportFile()
            }
            UpdateFileButton {
                objectName: "EmailButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: qsTr("Email File")
                onClicked: controller.EmailExportFile()
            }
        }
        UpdateFileButton {
            objectName: "ChooseFileButton"
            Layout.fillWidth: true
            text: qsTr("Choose File…")
            onClicked: controller.viewDidLoad()
        }
        // Its lines wrap rather than end cut short: the whole file stays readable, and
        // editable, before it replaces the articles.
        UpdateFileTextView {
            objectName: "ImportTextView"
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: controller.ImportTextView
            accessibleName: qsTr("The about file")
            onEdited: text => controller.ImportTextView = text
        }
    }
}
