pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// Rate and share: rate the app, share it or its web site, visit the site, send feedback.
ScreenPanel {
    id: root
    objectName: "SettingsView"
    title: controller.title

    SettingsViewController { id: controller }

    header: NavigationBar {
        title: controller.title
        onBackClicked: root.StackView.view.pop()
    }

    background: Rectangle { color: "white" }

    TableList {
        id: table
        objectName: "table"
        anchors.fill: parent
        model: controller.rowTitles
        Accessible.name: controller.title
        delegate: ListCell {
            id: row
            required property string modelData
            required property int index
            objectName: "row-" + index
            width: table.width
            text: modelData
            Accessible.role: Accessible.Button
            Accessible.name: modelData
            contentItem: Label {
                text: row.modelData
                color: "black"
                font.pixelSize: 17
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: true // the row's name says it
            }
            onClicked: controller.didSelectRowAt(index)
        }
    }
}
