pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Dialogs
import QtQuick.Layouts
import Larkwells

// The bottom sheet of the Sharing service: copy, save as a text file, e-mail, text message; for
// a file, save a copy or open it with the desktop's handler.
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
    background: Rectangle { color: Theme.cellColor }

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
            text: Sharing.sharesFile ? Sharing.fileName : Sharing.text.trim()
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
                { name: "savecopy", title: qsTr("Save a Copy…") },
                { name: "openwith", title: qsTr("Open With…") },
                { name: "cancel", title: qsTr("Cancel") }
            ]
            delegate: ItemDelegate {
                required property var modelData
                objectName: "share-" + modelData.name
                Layout.fillWidth: true
                readonly property bool forFile: modelData.name === "savecopy" || modelData.name === "openwith"
                // Asking the desktop for a text-message handler waits until the sheet is wanted.
                visible: modelData.name === "cancel" || (forFile === Sharing.sharesFile
                         && (modelData.name !== "sms" || (Sharing.showing && Sharing.canSendText)))
                text: modelData.title
                font.pixelSize: 17
                font.bold: modelData.name === "cancel"
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: {
                    switch (modelData.name) {
                    case "copy": Sharing.copyToClipboard(); break
                    case "file": saveDialog.open(); break
                    case "mail": Sharing.email(); break
                    case "sms": Sharing.textMessage(); break
                    case "savecopy": copyDialog.open(); break
                    case "openwith": Sharing.openWith(); break
                    default: Sharing.cancel()
                    }
                }
            }
        }
    }

    FileDialog {
        id: saveDialog
        title: qsTr("Save as Text File")
        fileMode: FileDialog.SaveFile
        defaultSuffix: "txt"
        nameFilters: [qsTr("Text files (*.txt)")]
        onAccepted: Sharing.saveToFile(selectedFile)
    }

    FileDialog {
        id: copyDialog
        title: qsTr("Save a Copy")
        fileMode: FileDialog.SaveFile
        currentFolder: Sharing.documentsFolder
        selectedFile: Sharing.suggestedCopy
        onAccepted: Sharing.saveCopy(selectedFile)
    }
}
