import QtQuick
import QtQuick.Controls
import Larkwells

// A row's "Good Morning:   Page#  12" label, placed so that the numbers line up row under row
// whatever the font: the words end, and the number starts, at one column. One text, not two:
// rows are made as fast as a flick brings them. Where the line does not fit (a large list font
// on a phone) the label wraps, centred, and keeps every word.
Item {
    id: pageLabel
    required property string text
    property string fontName
    property real fontSize: 15
    readonly property string number: (text.match(/\d+$/) || [""])[0]
    readonly property bool inColumns: number.length > 0
                                      && columnWidth.advanceWidth + numberWidth.advanceWidth <= width

    implicitHeight: label.implicitHeight

    // The words of every row end at the width of the longest.
    TextMetrics {
        id: columnWidth
        font: label.font
        text: "Good Morning:   Page#  "
    }
    TextMetrics {
        id: numberWidth
        font: label.font
        text: "0000"
    }
    TextMetrics {
        id: wordsWidth
        font: label.font
        text: pageLabel.inColumns ? pageLabel.text.slice(0, pageLabel.text.length - pageLabel.number.length) : ""
    }
    Label {
        id: label
        objectName: "PageWords"
        Accessible.ignored: true // the row's name says it
        x: pageLabel.inColumns
           ? (pageLabel.width - columnWidth.advanceWidth - numberWidth.advanceWidth) / 2
             + columnWidth.advanceWidth - wordsWidth.advanceWidth
           : 0
        width: pageLabel.inColumns ? implicitWidth : pageLabel.width
        text: pageLabel.inColumns ? pageLabel.text : pageLabel.text.trim()
        color: "black"
        horizontalAlignment: pageLabel.inColumns ? Text.AlignLeft : Text.AlignHCenter
        wrapMode: pageLabel.inColumns ? Text.NoWrap : Text.Wrap
        font.family: pageLabel.fontName
        font.pixelSize: pageLabel.fontSize
        textFormat: Text.PlainText
    }
}
