import QtQuick
import QtQuick.Controls
import Larkwells

// A row's "Good Morning:   Page#  12" label, in two columns so that the numbers line up row
// under row whatever the font. Where the two columns do not fit (a large list font on a phone)
// the label wraps, centred, and keeps every word.
Item {
    id: pageLabel
    required property string text
    property string fontName
    property real fontSize: 15
    readonly property string number: (text.match(/\d+$/) || [""])[0]
    readonly property bool inColumns: number.length > 0
                                      && prefixWidth.advanceWidth + numberWidth.advanceWidth <= width

    implicitHeight: inColumns ? prefixLabel.implicitHeight : wrapped.implicitHeight

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
        visible: pageLabel.inColumns
        Label {
            id: prefixLabel
            objectName: "PageWords"
            width: prefixWidth.advanceWidth
            text: pageLabel.text.slice(0, pageLabel.text.length - pageLabel.number.length)
            color: "black"
            horizontalAlignment: Text.AlignRight
            font.family: pageLabel.fontName
            font.pixelSize: pageLabel.fontSize
            textFormat: Text.PlainText
        }
        Label {
            width: numberWidth.advanceWidth
            text: pageLabel.number
            color: "black"
            font: prefixLabel.font
        }
    }
    Label {
        id: wrapped
        objectName: "PageWords"
        width: parent.width
        visible: !pageLabel.inColumns
        // Laid out only when shown: most rows fit in columns.
        text: pageLabel.inColumns ? "" : pageLabel.text.trim()
        color: "black"
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        font: prefixLabel.font
        textFormat: Text.PlainText
    }
}
