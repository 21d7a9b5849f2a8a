import QtQuick
import QtQuick.Controls
import Larkwells

// A row of a list: the shared card look, at least `rowHeight` high and taller when its text
// needs it, with the list wallpaper when given.
ItemDelegate {
    id: cell
    property url wallpaper
    property real rowHeight: 65
    height: Math.max(rowHeight, implicitHeight)
    padding: 10
    leftPadding: 14
    rightPadding: 14
    topInset: 2
    bottomInset: 2
    focusPolicy: Qt.NoFocus
    background: CellCard {
        wallpaper: cell.wallpaper
        pressed: cell.down
        ringed: cell.ListView.isCurrentItem && cell.ListView.view.activeFocus
    }
    Accessible.ignored: !visible
    Accessible.onPressAction: if (cell.visible && cell.enabled) cell.clicked()
    // Space opens a focused row as any button does; Enter and Return too, as in a list.
    Keys.onReturnPressed: cell.clicked()
    Keys.onEnterPressed: cell.clicked()
}
