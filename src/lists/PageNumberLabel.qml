import QtQuick
import QtQuick.Controls

// A row's "Good Morning:   Page#  12" label, in two columns so that the numbers line up row
// under row whatever the font. A list font too large for the row is made smaller to fit,
// rather than the words being cut.
Item {
    id: pageLabel
    required property string text
    property string fontName
    property real fontSize: 15
    readonly property string number: (text.match(/\d+$/) || [""])[0]
    // The size at which the words and the number column fit the row's width.
    readonly property real fittedSize: pageLabel.width <= 0 ? fontSize
        : Math.max(10, Math.min(fontSize, Math.floor(fontSize * pageLabel.width
                                                     / (prefixWidth.advanceWidth + numberWidth.advanceWidth))))

    implicitHeight: prefixLabel.implicitHeight

    TextMetrics {
        id: prefixWidth
        font.family: pageLabel.fontName
        font.pixelSize: pageLabel.fontSize
        text: "Good Morning:   Page#  "
    }
    TextMetrics {
        id: numberWidth
        font.family: pageLabel.fontName
        font.pixelSize: pageLabel.fontSize
        text: "0000"
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        Label {
            id: prefixLabel
            objectName: "PageWords"
            width: pageLabel.number ? prefixWidth.advanceWidth * pageLabel.fittedSize / pageLabel.fontSize : implicitWidth
            text: pageLabel.text.slice(0, pageLabel.text.length - pageLabel.number.length)
            color: "black"
            horizontalAlignment: Text.AlignRight
            font.family: pageLabel.fontName
            font.pixelSize: pageLabel.fittedSize
            textFormat: Text.PlainText
            elide: Text.ElideLeft
        }
        Label {
            width: numberWidth.advanceWidth * pageLabel.fittedSize / pageLabel.fontSize
            visible: pageLabel.number.length > 0
            text: pageLabel.number
            color: "black"
            font: prefixLabel.font
        }
    }
}
