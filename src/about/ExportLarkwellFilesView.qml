pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The export menu: one button for each kind of update file.
Page {
    id: root
    objectName: "ExportLarkwellFilesView"
    title: qsTr("Update Files")

    ExportLarkwellFilesViewController { id: controller }

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
    }
}
