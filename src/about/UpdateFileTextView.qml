pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// A framed, scrolling, editable text view for whole update files. A file of a few hundred
// kilobytes would freeze the screen while one text item laid it all out, so the text is shown
// in blocks of lines and only the blocks in sight exist. `edited` reports the user's typing
// with the whole text.
ListView {
    id: view
    property string text
    property bool readOnly: false
    property string accessibleName
    signal edited(string text)

    readonly property int linesPerBlock: 40
    property var blocks: []
    property string lastEdited

    function blocksOf(whole: string): var {
        const lines = whole.split("\n")
        const result = []
        for (let i = 0; i < lines.length; i += linesPerBlock)
            result.push(lines.slice(i, i + linesPerBlock).join("\n"))
        return result
    }
    function blockEdited(index: int, blockText: string) {
        blocks[index] = blockText
        lastEdited = blocks.join("\n")
        edited(lastEdited)
    }
    // Puts the cursor at the start or end of a block, when there is one.
    function enterBlock(index: int, atEnd: bool) {
        if (index < 0 || index >= count)
            return
        positionViewAtIndex(index, ListView.Contain)
        const block = itemAtIndex(index)
        if (block) {
            block.forceActiveFocus(Qt.TabFocusReason)
            block.cursorPosition = atEnd ? block.length : 0
        }
    }

    onTextChanged: if (text !== lastEdited) blocks = blocksOf(text)
    Component.onCompleted: blocks = blocksOf(text)

    implicitHeight: contentHeight + topMargin + bottomMargin
    clip: true
    topMargin: 8
    bottomMargin: 8
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    onActiveFocusChanged: if (activeFocus) enterBlock(Math.max(0, indexAt(0, contentY + topMargin)), false)
    ScrollBar.vertical: ScrollBar {}
    Accessible.role: Accessible.EditableText
    Accessible.name: accessibleName

    Rectangle {
        parent: view
        z: -1
        anchors.fill: parent
        radius: 5
        color: "white"
        border.width: view.activeFocus || (view.currentItem && view.currentItem.activeFocus) ? Theme.focusRingWidth : 1
        border.color: border.width > 1 ? Theme.tint : "black"
    }

    model: blocks.length
    delegate: TextEdit {
        id: block
        required property int index
        objectName: view.objectName + "Block" + index
        width: view.width
        leftPadding: 8
        rightPadding: 8
        text: view.blocks[index]
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        readOnly: view.readOnly
        color: "black"
        font.pixelSize: 15
        selectByMouse: true
        activeFocusOnTab: false
        Accessible.role: Accessible.EditableText
        Accessible.name: view.accessibleName
        onTextChanged: if (activeFocus) view.blockEdited(index, text)
        onActiveFocusChanged: if (activeFocus) view.currentIndex = index
        // Up on the first line and Down on the last go on into the next block.
        Keys.onUpPressed: event => {
            if (cursorRectangle.y > 0)
                event.accepted = false
            else
                view.enterBlock(index - 1, true)
        }
        Keys.onDownPressed: event => {
            if (cursorRectangle.y + cursorRectangle.height < contentHeight - 1)
                event.accepted = false
            else
                view.enterBlock(index + 1, false)
        }
        Keys.onTabPressed: view.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: view.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }
}
