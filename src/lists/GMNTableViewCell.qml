pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// A page row: its date, its "Good Morning"/"Good Night" label with the page number, and the
// favourite box with its "Fav" label.
ListCell {
    id: cell
    required property string dateText
    required property string pageText
    required property bool favoriteChecked
    property string fontName
    property real fontSize: 15
    // Whether the row's box changes the mark, or only shows it.
    property bool favoriteInteractive: true
    signal favoriteChanged(int checkState)

    Accessible.name: dateText + ", " + pageText.trim() + (favoriteChecked ? ", " + qsTr("favorite") : "")

    onFavoriteCheckedChanged: favoriteBox.setCheckState(favoriteChecked ? 1 : 0, true)

    contentItem: RowLayout {
        spacing: 8
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            Label {
                objectName: "DateLabel"
                Layout.fillWidth: true
                text: cell.dateText
                color: "black"
                horizontalAlignment: Text.AlignHCenter
                font.family: cell.fontName
                font.pixelSize: cell.fontSize
                font.bold: true
                wrapMode: Text.Wrap
            }
            Item {
                // The label and number in two columns, so the numbers line up row under row.
                id: pageLabel
                objectName: "PageLabel"
                readonly property string text: cell.pageText
                readonly property string number: (text.match(/\d+$/) || [""])[0]
                Layout.fillWidth: true
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
                        width: pageLabel.number ? Math.min(prefixWidth.advanceWidth, pageLabel.width - numberWidth.advanceWidth) : implicitWidth
                        text: pageLabel.text.slice(0, pageLabel.text.length - pageLabel.number.length)
                        color: "black"
                        horizontalAlignment: Text.AlignRight
                        font.family: cell.fontName
                        font.pixelSize: cell.fontSize
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
        }
        FavoriteBox {
            id: favoriteBox
            Layout.alignment: Qt.AlignVCenter
            interactive: cell.favoriteInteractive
            fontFamily: cell.fontName
            fontSize: Math.min(cell.fontSize, 15)
            Component.onCompleted: setCheckState(cell.favoriteChecked ? 1 : 0, false)
            onValueChanged: checkState => cell.favoriteChanged(checkState)
            onPassiveTap: cell.clicked()
        }
    }
}
