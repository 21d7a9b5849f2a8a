pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
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
    ListView.onIsCurrentItemChanged: if (!ListView.isCurrentItem && box.activeFocus) ListView.view.forceActiveFocus()
    // Between leaving the view and coming back as another page's row.
    property bool pooled: false
    ListView.onPooled: pooled = true
    ListView.onReused: pooled = false

    // Plain positioning rather than layouts: rows are made as fast as a flick brings them. The
    // favourite box sits in the right padding, beside the texts; texts shorter than the row sit
    // in its middle.
    rightPadding: 14 + box.width + 8
    topPadding: Math.max(10, (rowHeight - implicitContentHeight) / 2)
    bottomPadding: topPadding
    contentItem: Column {
        spacing: 2
        Label {
            objectName: "DateLabel"
            width: parent.width
            text: cell.dateText
            color: "black"
            horizontalAlignment: Text.AlignHCenter
            font.family: cell.fontName
            font.pixelSize: cell.fontSize
            wrapMode: Text.Wrap
            Accessible.ignored: true // the row's name says it
        }
        PageNumberLabel {
            objectName: "PageLabel"
            width: parent.width
            text: cell.pageText
            fontName: cell.fontName
            fontSize: cell.fontSize
        }
    }
    FavoriteBox {
        id: box
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        interactive: cell.favoriteInteractive
        // Tab reaches the box of the current row only, then leaves the list. When the arrows
        // move on from a row whose box has the keyboard, the list takes it back.
        activeFocusOnTab: interactive && (cell.ListView.isCurrentItem || box.activeFocus)
        checked: cell.favoriteChecked
        animates: !cell.pooled
        fontFamily: cell.fontName
        fontSize: cell.fontSize
        onValueChanged: checkState => cell.favoriteChanged(checkState)
        onPassiveTap: cell.clicked()
    }
}
