pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// Builds an update file once a visit, shows it, and saves or mails it. The special-day export
// is this page with its own controller.
ScreenPanel {
    id: root
    objectName: "ExportView"
    property ExportViewController controller: ExportViewController {}
    title: controller.title

    Component.onCompleted: controller.viewDidLoad()

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
                objectName: "ExportButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: qsTr("Create Export File")
                enabled: root.controller.ExportButtonEnabled
                onClicked: root.controller.CreateUpdateFile()
            }
            UpdateFileButton {
                objectName: "SaveButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: "Save To Files"
                enabled: root.controller.SaveButtonEnabled
                onClicked: root.controller.SaveToFiles()
            }
            UpdateFileButton {
                objectName: "EmailButton"
                Layout.fillWidth: true
                Layout.preferredWidth: 1
                text: qsTr("Email File")
                enabled: root.controller.EmailButtonEnabled
                onClicked: root.controller.WriteTextFile()
            }
        }
        UpdateFileTextView {
            objectName: "HelpTextView"
            Layout.fillWidth: true
            Layout.preferredHeight: Math.min(implicitHeight, root.height / 3)
            readOnly: true
            text: root.controller.HelpTextView
            accessibleName: qsTr("Instructions")
        }
        UpdateFileTextView {
            objectName: "ExportTextView"
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: root.controller.ExportTextView
            accessibleName: qsTr("The export file")
            onEdited: text => root.controller.ExportTextView = text
        }
    }
}
