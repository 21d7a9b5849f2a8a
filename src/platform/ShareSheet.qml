pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The bottom sheet of the Sharing service: copy, save as a text file, e-mail, text message.
Drawer {
    id: sheet
    objectName: "shareSheet"
    edge: Qt.BottomEdge
    modal: true
    interactive: Sharing.showing
    width: parent ? parent.width : 360
    visible: Sharing.showing
    onOpened: Sharing.sheetPresented()
    onClosed: if (Sharing.showing) Sharing.cancel()
    // The file dialog, loaded when first wanted; a test may point this elsewhere.
    property url saveDialogSource: Qt.resolvedUrl("SaveTextDialog.qml")

    // A fresh dialog each time; it opens as soon as it is made.
    function openSaveDialog() {
        saveDialog.active = false
        saveDialog.active = true
    }

    contentItem: ColumnLayout {
        spacing: 0
        Label {
            Layout.fillWidth: true
            Layout.margins: 16
            text: qsTr("Share")
            font.bold: true
            font.pixelSize: 18
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.bottomMargin: 8
            text: Sharing.text.trim()
            elide: Text.ElideRight
            maximumLineCount: 2
            wrapMode: Text.WordWrap
            color: "#555"
        }
        Repeater {
            model: [
                { name: "copy", title: qsTr("Copy to Clipboard") },
                { name: "file", title: qsTr("Save as Text File…") },
                { name: "mail", title: qsTr("E-mail") },
                { name: "sms", title: qsTr("Text Message") },
                { name: "cancel", title: qsTr("Cancel") }
            ]
            delegate: ItemDelegate {
                required property var modelData
                objectName: "share-" + modelData.name
                Layout.fillWidth: true
                // Asking the desktop for a handler waits until the sheet is wanted.
                visible: (modelData.name !== "sms" || (Sharing.showing && Sharing.canSendText))
                         && (modelData.name !== "mail" || (Sharing.showing && Sharing.canSendMail))
                text: modelData.title
                font.pixelSize: 17
                font.bold: modelData.name === "cancel"
                Accessible.name: text
                Accessible.onPressAction: if (visible && enabled) clicked()
                onClicked: {
                    switch (modelData.name) {
                    case "copy": Sharing.copyToClipboard(); break
                    case "file": sheet.openSaveDialog(); break
                    case "mail": Sharing.email(); break
                    case "sms": Sharing.textMessage(); break
                    default: Sharing.cancel()
                    }
                }
            }
        }
    }

    Loader {
        id: saveDialog
        Layout.preferredHeight: 0
        active: false
        source: sheet.saveDialogSource
        onStatusChanged: {
            if (status !== Loader.Error)
                return
            active = false
            Sharing.saveDialogUnavailable("Qt.labs.folderlistmodel")
        }
    }
}
