import QtQuick
import QtQuick.Controls
import Larkwells

// A framed, scrolling text view of the update-file screens. `edited` reports the user's typing.
ScrollView {
    id: view
    property alias text: area.text
    property alias readOnly: area.readOnly
    property alias textArea: area
    property string accessibleName
    signal edited(string text)

    clip: true
    ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

    background: Rectangle {
        radius: 5
        color: "white"
        border.width: area.activeFocus ? Theme.focusRingWidth : 1
        border.color: area.activeFocus ? Theme.tint : "black"
    }

    TextArea {
        id: area
        objectName: view.objectName + "Area"
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        color: "black"
        selectByMouse: true
        activeFocusOnTab: true
        padding: 8
        background: null
        Accessible.role: Accessible.EditableText
        Accessible.name: view.accessibleName
        onTextChanged: if (activeFocus) view.edited(text)
        Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
        Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    }
}
