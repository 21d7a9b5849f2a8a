import QtQuick
import QtQuick.Controls
import Larkwells

// A font field: the chosen family's name, centred, drawn in that family at the chosen size.
// Choosing opens the font picker (click, Space, Enter or a screen reader's press).
AbstractButton {
    id: field
    property string label
    property string fontFamily
    property real fontSize: 17

    implicitHeight: Math.max(Theme.touchTarget, contentItem.implicitHeight + 16)
    focusPolicy: Qt.StrongFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Accessible.role: Accessible.ComboBox
    Accessible.name: label
    Accessible.description: text
    Accessible.ignored: !visible
    Accessible.onPressAction: if (field.visible && field.enabled) field.clicked()

    contentItem: Label {
        text: field.text
        color: "black"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: field.fontFamily
        font.pixelSize: field.fontSize
        elide: Text.ElideRight
    }
    background: Rectangle {
        radius: 6
        color: field.down ? Theme.cellPressedColor : "white"
        border.width: field.visualFocus ? Theme.focusRingWidth : 1
        border.color: field.visualFocus ? Theme.tint : Theme.quietText
    }
}
