import QtQuick
import Larkwells

// A heading, listed as one by a screen reader: a plain Text, since a Label on Qt 6.4 keeps its
// static-text role whatever Accessible.role says.
Text {
    color: "black"
    font.pixelSize: Theme.titleFontSize
    font.bold: true
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
