import QtQuick
import QtQuick.Controls
import Larkwells

// A list screen's table: the rows over white, a scroll bar, a quiet line when it is empty, and
// the keyboard (Up/Down move, Enter or Space opens the row). It remembers the row that was
// opened and keeps it in view when the screen comes back.
ListView {
    id: table
    property string emptyText
    property int chosenRow: -1
    property real rowOffset: 0
    // The row the user opened; the screen calls this before it opens the row.
    function remember(row: int) {
        chosenRow = row
        rowOffset = offsetInView(itemAtIndex(row))
        currentIndex = row
    }
    // Left to the interpreter: the compiled form of this lookup misreads a delegate's y.
    function offsetInView(item) {
        return item ? item.y - contentY : 0
    }
    // Back on the screen (after a reload): the opened row where it was on the screen, so the
    // list looks as the reader left it.
    function restore() {
        if (chosenRow < 0 || chosenRow >= count)
            return
        forceLayout()
        currentIndex = chosenRow
        positionViewAtIndex(chosenRow, ListView.Beginning)
        contentY = Math.max(originY, Math.min(contentY - rowOffset, originY + contentHeight - height))
        positionViewAtIndex(chosenRow, ListView.Contain)
    }

    // The same, for the row now open when the reader turned to another page (-1: the one opened).
    function restoreAt(row: int) {
        if (row >= 0)
            chosenRow = row
        restore()
    }

    anchors.margins: 6
    clip: true
    // Rows are made as they scroll into view: rows made ahead are drawn and synced every frame
    // of a flick (a quarter more frame time) and buy no smoother frames.
    cacheBuffer: 0
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: true
    highlightFollowsCurrentItem: false
    currentIndex: -1
    ScrollBar.vertical: ScrollBar {}
    Accessible.role: Accessible.List

    onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
    // The arrow keys move the current row; the list follows it (there is no highlight to follow).
    onCurrentIndexChanged: if (activeFocus && currentIndex >= 0) positionViewAtIndex(currentIndex, ListView.Contain)
    Keys.onReturnPressed: openCurrent()
    Keys.onEnterPressed: openCurrent()
    Keys.onSpacePressed: openCurrent()
    function openCurrent() {
        const row = currentItem as AbstractButton
        if (row)
            row.clicked()
    }

    Label {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: table.count === 0 && table.emptyText.length > 0
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        font.pixelSize: 17
        color: Theme.quietText
        text: table.emptyText
    }
}
