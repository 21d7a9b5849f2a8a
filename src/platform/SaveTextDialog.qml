import QtQuick
import QtQuick.Dialogs
// The dialog's own file list needs this module; importing it here makes its absence a load
// error of this file, reported to the user, instead of a crash when the dialog opens.
import Qt.labs.folderlistmodel as FolderListModelCheck
import Larkwells

// Where the share sheet's text is saved as a plain text file.
Item {
    Component.onCompleted: dialog.open()
    FileDialog {
        id: dialog
        objectName: "saveTextDialog"
        title: qsTr("Save as Text File")
        fileMode: FileDialog.SaveFile
        acceptLabel: qsTr("Save")
        defaultSuffix: "txt"
        nameFilters: [qsTr("Text files (*.txt)")]
        onAccepted: Sharing.saveToFile(selectedFile)
    }
}
