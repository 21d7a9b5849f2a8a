import QtQuick
import QtQuick.Controls
import Larkwells

// A row's "Good Morning:   Page#  12" label, in two columns so that the numbers line up row
// under row whatever the font.
Item {
    id: pageLabel
    required property string text
    property string fontName
    property real fontSize: 15
    readonly property string number: (text.match(/\d+$/) || [""])[0]

    implicitHeight: prefixLabel.implicitHeight

    TextMetrics {
        id: prefixWidth
        font: prefixLabel.font
        text: "Good Morning:   Page#  "
    }
    TextMetrics {
        id: numberWidth
        font: prefixLabel.font
        text: "0000"
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        Label {
            id: prefixLabel
            objectName: "PageWords"
            width: pageLabel.number ? Math.min(prefixWidth.advanceWidth, pageLabel.width - numberWidth.advanceWidth) : implicitWidth
            text: pageLabel.text.slice(0, pageLabel.text.length - pageLabel.number.length)
            color: "black"
            horizontalAlignment: Text.AlignRight
            font.family: pageLabel.fontName
            font.pixelSize: pageLabel.fontSize
            textFormat: Text.PlainText
            elide: Text.ElideLeft
        }
        Label {
            width: numberWidth.advanceWidth
            visible: pageLabel.number.length > 0
            text: pageLabel.number
            color: "black"
            font: prefixLabel.font
        }
    }
}
