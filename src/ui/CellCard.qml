import QtQuick
import Larkwells

// The card behind every list row: rounded and black-bordered in the list colour, darker while
// pressed, under the list wallpaper when one is given, ringed while the list has the keyboard
// on this row. The plain card is drawn as it is shown, with no picture of its own: a list of
// them flicks faster and holds two row-sized pictures less per row.
Rectangle {
    id: card
    property url wallpaper
    property bool pressed
    property bool ringed

    radius: Theme.cornerRadius + Theme.borderWidth / 2
    color: pressed ? Theme.cellPressedColor : Theme.cellColor
    border.width: Theme.borderWidth
    border.color: Theme.border

    // Of no size without a wallpaper: a painted item holds its own picture of the row, and one
    // of no size holds none.
    CellBackground {
        readonly property bool shown: card.wallpaper != ""
        width: shown ? card.width : 0
        height: shown ? card.height : 0
        wallpaper: card.wallpaper
        pressed: card.pressed
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.cornerRadius
        color: "transparent"
        border.width: Theme.focusRingWidth + 1
        border.color: Theme.tint
        visible: card.ringed
    }
}
