pragma Singleton
import QtQuick

// Colours and sizes used on more than one screen.
QtObject {
    // The card colour of list cells and bars: hue 0.5, saturation 0.06, brightness 0.96.
    readonly property color cellColor: Qt.hsva(0.5, 0.06, 0.96, 1)
    readonly property color cellPressedColor: "#c9dede"
    // The one blue of segments, accents and focus rings (red 0.0, green 0.15, blue 0.65).
    readonly property color tint: Qt.rgba(0.0, 0.15, 0.65, 1)
    readonly property color tintPressed: "#d7def5"
    readonly property color border: "black"
    readonly property color quietText: "#4a4a4a"
    readonly property color readerBackground: "lightgrey"

    // The platform's own text face, for text shown in no chosen font.
    readonly property string plainFontFamily: plainText.font.family
    readonly property Text plainText: Text {}

    readonly property real cornerRadius: 10
    readonly property real borderWidth: 2
    readonly property real focusRingWidth: 2
    // The smallest comfortable touch target.
    readonly property real touchTarget: 44
    readonly property real barFontSize: 17
    readonly property real titleFontSize: 18
}
