import QtQuick
import Larkwells

// "Undo Import" for the about list's bar: shown after an about import in this run; puts the
// articles back as they were before it, then hides. The list re-fetches on `importUndone`.
BarButton {
    id: button
    objectName: "UndoImportButton"
    signal importUndone()
    text: qsTr("Undo Import")
    visible: AboutImportUndo.available
    onClicked: if (AboutImportUndo.undo()) button.importUndone()
}
