import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Larkwells

// The bar at the bottom of a screen: the cells' colour, black text, and flat like the top bar.
ToolBar {
    Material.background: Theme.cellColor
    Material.foreground: "black"
    Material.elevation: 0
}
