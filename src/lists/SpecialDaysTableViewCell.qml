import QtQuick
import QtQuick.Controls
import Larkwells

// A special-day row: "Good Morning - " or "Good Night - " and the day's name, left-aligned.
ListCell {
    id: cell
    required property string dayText
    property string fontName
    property real fontSize: 17

    Accessible.name: dayText

    contentItem: Label {
        objectName: "DayLabel"
        text: cell.dayText
        color: "black"
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        font.family: cell.fontName
        font.pixelSize: cell.fontSize
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        Accessible.ignored: true // the row's name says it
    }
}
