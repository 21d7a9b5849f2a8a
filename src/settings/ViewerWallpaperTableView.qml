import QtQuick
import Larkwells

// The wallpapers behind the readers' text.
WallpaperTableView {
    objectName: "ViewerWallpaperTableView"
    outletPrefix: "Viewer"
    controller: ViewerWallpaperTableViewController {}
}
