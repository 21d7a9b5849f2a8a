pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// A note's row: the shared card with its date and subject over its text; swiped left it offers
// "delete", which a keyboard reaches with the Delete key and a screen reader as a named button.
SwipeDelegate {
    id: cell
    required property string mainText
    required property string detailText
    signal deleteClicked()

    height: Math.max(65, implicitHeight)
    padding: 10
    leftPadding: 14
    rightPadding: 14
    topInset: 2
    bottomInset: 2
    focusPolicy: Qt.NoFocus
    Accessible.name: mainText + ", " + detailText
    Accessible.ignored: !visible
    Accessible.onPressAction: if (cell.visible && cell.enabled) cell.clicked()

    ListView.onPooled: swipe.close()

    background: CellCard {
        pressed: cell.down
        ringed: cell.ListView.isCurrentItem && cell.ListView.view.activeFocus
    }

    contentItem: ColumnLayout {
        spacing: 2
        Label {
            objectName: "MainTextLabel"
            Layout.fillWidth: true
            text: cell.mainText
            color: "black"
            font.pixelSize: 16
            font.bold: true
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            Accessible.ignored: true // the row's name says it
        }
        Label {
            objectName: "DetailTextLabel"
            Layout.fillWidth: true
            text: cell.detailText
            color: Theme.quietText
            font.pixelSize: 14
            textFormat: Text.PlainText
            maximumLineCount: 2
            elide: Text.ElideRight
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        Item {
            // The swipe action as a screen reader finds it, without a swipe.
            implicitWidth: 1
            implicitHeight: 1
            Accessible.role: Accessible.Button
            Accessible.name: "delete"
            Accessible.description: cell.mainText
            Accessible.onPressAction: if (cell.visible && cell.enabled) cell.deleteClicked()
        }
    }

    swipe.right: AbstractButton {
        id: deleteAction
        objectName: "deleteAction"
        width: 96
        height: cell.height - 4
        y: 2
        // Placed by the cell's width: the swipe's own parent is gone while the list closes.
        x: cell.width - width
        focusPolicy: Qt.NoFocus
        text: "delete"
        Accessible.name: text
        Accessible.ignored: !cell.swipe.complete
        Accessible.onPressAction: if (cell.swipe.complete) deleteAction.clicked()
        onClicked: cell.deleteClicked()
        background: Rectangle {
            radius: Theme.cornerRadius
            color: deleteAction.down ? "#a51d1d" : "#d32f2f"
        }
        contentItem: Label {
            text: deleteAction.text
            color: "white"
            font.pixelSize: 16
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true // the button's name says it
        }
    }
}
