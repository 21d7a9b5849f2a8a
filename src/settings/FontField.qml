import QtQuick
import QtQuick.Controls
import Larkwells

// A font field: the chosen family's name, centred, drawn in that family at the chosen size.
// Choosing opens the font picker (click, Space, Enter or a screen reader's press). The focus
// scope is the field's face for the keyboard and a screen reader, which hears a combo box named
// by its label with the family as its value: a Control on Qt 6.4 keeps its own role whatever
// Accessible.role says.
FocusScope {
    id: field
    property string label
    property string text
    property string fontFamily
    property real fontSize: 17
    signal clicked()

    implicitHeight: Math.max(Theme.touchTarget, button.contentItem.implicitHeight + 16)
    activeFocusOnTab: true
    Keys.onSpacePressed: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Accessible.role: Accessible.ComboBox
    Accessible.name: label + ", " + text
    Accessible.focusable: true
    Accessible.ignored: !visible
    Accessible.onPressAction: if (field.visible && field.enabled) field.clicked()

    AbstractButton {
        id: button
        anchors.fill: parent
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: field.clicked()
        contentItem: Label {
            text: field.text
            color: "black"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.family: field.fontFamily
            font.pixelSize: field.fontSize
            elide: Text.ElideRight
            Accessible.ignored: true // the family is in the field's name
        }
        background: Rectangle {
            radius: 6
            color: button.down ? Theme.cellPressedColor : "white"
            border.width: field.activeFocus ? Theme.focusRingWidth : 1
            border.color: field.activeFocus ? Theme.tint : Theme.quietText
        }
    }
}
