pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The bottom sheet of the Sharing service: copy, save as a text file, e-mail, text message, and
// a picture where the screen offers one; for a file, save a copy or open it with the desktop's
// handler.
Drawer {
    id: sheet
    objectName: "shareSheet"
    readonly property string title: qsTr("Share")
    edge: Qt.BottomEdge
    modal: true
    interactive: Sharing.showing
    width: parent ? parent.width : 360
    visible: Sharing.showing
    Component.onCompleted: ModalPopups.watch(sheet)
    onOpened: Sharing.sheetPresented()
    onClosed: if (Sharing.showing) Sharing.cancel()
    background: Rectangle { color: Theme.cellColor }
    // The file dialogs, loaded when wanted; a test may point these elsewhere.
    property url saveDialogSource: Qt.resolvedUrl("SaveTextDialog.qml")
    property url copyDialogSource: Qt.resolvedUrl("SaveCopyDialog.qml")

    // A fresh dialog each time; it opens as soon as it is made.
    function openDialog(loader: Loader) {
        loader.active = false
        loader.active = true
    }

    contentItem: ColumnLayout {
        spacing: 0
        Heading {
            Layout.fillWidth: true
            Layout.margins: 16
            text: sheet.title
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
                { name: "picture", title: qsTr("Share as Picture") },
                { name: "savecopy", title: qsTr("Save a Copy…") },
                { name: "openwith", title: qsTr("Open With…") },
                { name: "cancel", title: qsTr("Cancel") }
            ]
            delegate: SheetRow {
                required property var modelData
                objectName: "share-" + modelData.name
                Layout.fillWidth: true
                readonly property bool forFile: modelData.name === "savecopy" || modelData.name === "openwith"
                // Asking the desktop for a handler waits until the sheet is wanted.
                visible: modelData.name === "cancel" || (forFile === Sharing.sharesFile
                         && (modelData.name !== "sms" || (Sharing.showing && Sharing.canSendText))
                         && (modelData.name !== "mail" || (Sharing.showing && Sharing.canSendMail))
                         && (modelData.name !== "picture" || Sharing.offersPicture))
                text: modelData.title
                font.pixelSize: 17
                font.bold: modelData.name === "cancel"
                Accessible.name: text
                Accessible.onPressAction: if (visible && enabled) clicked()
                onClicked: {
                    switch (modelData.name) {
                    case "copy": Sharing.copyToClipboard(); break
                    case "file": sheet.openDialog(saveDialog); break
                    case "mail": Sharing.email(); break
                    case "sms": Sharing.textMessage(); break
                    case "picture": Sharing.shareAsPicture(); break
                    case "savecopy": sheet.openDialog(copyDialog); break
                    case "openwith": Sharing.openWith(); break
                    default: Sharing.cancel()
                    }
                }
            }
        }
    }

    // A dialog whose QML module is missing is reported, never a crash.
    component DialogLoader: Loader {
        Layout.preferredHeight: 0
        active: false
        onStatusChanged: {
            if (status !== Loader.Error)
                return
            active = false
            Sharing.saveDialogUnavailable("Qt.labs.folderlistmodel")
        }
    }
    DialogLoader {
        id: saveDialog
        source: sheet.saveDialogSource
    }
    DialogLoader {
        id: copyDialog
        source: sheet.copyDialogSource
    }
}
