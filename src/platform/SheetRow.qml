import QtQuick
import QtQuick.Controls
import Larkwells

// A row of a bottom sheet. Tab reaches it and Space, Enter or Return press it (a row of a list is
// not reached by Tab, by default); it draws its own press tint and focus ring, as a dialog button
// does.
ItemDelegate {
    id: row
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    background: PressTint {
        implicitHeight: 48
        radius: 0
        pressed: row.down
        focusRing: row.visualFocus
    }
}
