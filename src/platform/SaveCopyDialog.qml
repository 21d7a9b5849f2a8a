import QtQuick
import QtQuick.Dialogs
// As for the text dialog: the file list's module is imported here, so its absence is a load
// error that the share sheet reports.
import Qt.labs.folderlistmodel as FolderListModelCheck
import Larkwells

// Where "Save a Copy…" puts the shared file.
Item {
    Component.onCompleted: dialog.open()
    FileDialog {
        id: dialog
        objectName: "saveCopyDialog"
        title: qsTr("Save a Copy")
        fileMode: FileDialog.SaveFile
        acceptLabel: qsTr("Save")
        currentFolder: Sharing.documentsFolder
        selectedFile: Sharing.suggestedCopy
        onAccepted: Sharing.saveCopy(selectedFile)
    }
}
