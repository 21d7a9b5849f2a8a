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

    Accessible.name: dateText + ", " + pageText.trim() + (favoriteChecked ? ", " + qsTr("favorite") : "")

    onFavoriteCheckedChanged: favoriteCheckBox.setCheckState(favoriteChecked ? 1 : 0, true)

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
                elide: Text.ElideRight
            }
            Label {
                objectName: "PageLabel"
                Layout.fillWidth: true
                text: cell.pageText
                color: "black"
                horizontalAlignment: Text.AlignHCenter
                font.family: cell.fontName
                font.pixelSize: cell.fontSize
                textFormat: Text.PlainText
                elide: Text.ElideRight
            }
        }
        ColumnLayout {
            spacing: 0
            Layout.alignment: Qt.AlignVCenter
            M13Checkbox {
                id: favoriteCheckBox
                objectName: "FavoriteCheckBox"
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: 26
                implicitHeight: 26
                Component.onCompleted: setCheckState(cell.favoriteChecked ? 1 : 0, false)
                // The row's name says whether it is a favourite; the reader changes the mark.
                Accessible.ignored: true
                MouseArea {
                    anchors.fill: parent
                    onClicked: cell.clicked()
                }
            }
            Label {
                objectName: "FavoriteLabel"
                Layout.alignment: Qt.AlignHCenter
                text: "Fav"
                color: "black"
                font.family: cell.fontName
                font.pixelSize: Math.min(cell.fontSize, 15)
            }
        }
    }
}
