import QtQuick
import QtQuick.Controls
import Larkwells

// A row of a list: the shared card look, 65 points high, with the list wallpaper when given.
ItemDelegate {
    id: cell
    property url wallpaper
    height: 65
    padding: 10
    leftPadding: 14
    rightPadding: 14
    topInset: 2
    bottomInset: 2
    background: CellBackground {
        wallpaper: cell.wallpaper
        pressed: cell.down
    }
    Accessible.onPressAction: clicked()
}
