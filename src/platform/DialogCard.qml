import QtQuick

// The plain card behind our dialogs. The style's card draws its shadow with a shader effect,
// which a window without a graphics driver cannot run: the card then vanished and the screen
// behind showed through the dialog.
Rectangle {
    radius: 4
    color: "white"
    border.width: 1
    border.color: "#9a9a9a"
}
