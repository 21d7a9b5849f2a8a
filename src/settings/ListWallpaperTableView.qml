import QtQuick
import Larkwells

// The wallpapers behind list rows.
WallpaperTableView {
    objectName: "ListWallpaperTableView"
    outletPrefix: "List"
    wholePicture: false
    controller: ListWallpaperTableViewController {}
}
