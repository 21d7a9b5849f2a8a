pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// Shows the current alert of the Alerts service, modal, with its buttons in order.
Dialog {
    id: dialog
    objectName: "alertDialog"
    modal: true
    anchors.centerIn: parent
    // An alert without buttons closes with Escape or a tap outside, so it can never trap the
    // reader; Escape presses the button of an alert that changes nothing.
    closePolicy: Alerts.buttons.length === 0 ? Popup.CloseOnEscape | Popup.CloseOnPressOutside
               : Alerts.cancelButton >= 0 ? Popup.CloseOnEscape : Popup.NoAutoClose
    onClosed: if (Alerts.showing) Alerts.dismiss(Alerts.buttons.length === 0 ? -1 : Alerts.cancelButton)
    // Deferred, so an alert raised while the window is still being built opens once it is shown.
    function follow() {
        if (Alerts.showing)
            open()
        else
            close()
    }
    Component.onCompleted: {
        ModalPopups.watch(dialog)
        deferred.restart()
    }
    Connections {
        target: Alerts
        function onCurrentChanged() { deferred.restart() }
    }
    Timer {
        id: deferred
        interval: 0
        onTriggered: dialog.follow()
    }
    title: Alerts.title
    // A plain card: the style's soft shadow left scraps behind on small windows.
    background: DialogCard {}
    width: Math.min(parent ? parent.width - 48 : 360, 420)

    // The title wraps rather than being cut short on a phone. Laid out at the dialog's own width:
    // the style's title, laid out at the width its header is given, changed height while the
    // dialog was still sizing itself to it (a binding loop when the window resized).
    header: Item {
        implicitHeight: dialog.title ? titleLabel.implicitHeight + titleLabel.y : 0
        Label {
            id: titleLabel
            objectName: "alertTitle"
            x: dialog.leftPadding
            y: dialog.topPadding + 4
            width: dialog.width - dialog.leftPadding - dialog.rightPadding
            visible: dialog.title.length > 0
            text: dialog.title
            wrapMode: Text.Wrap
            font.bold: true
            font.pixelSize: 16
            Accessible.ignored: true // the dialog is named by the title
        }
    }

    contentItem: Label {
        text: Alerts.message
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    // Enter or Space answers an alert with one button. Where there is a choice ("Discard" or
    // "Keep Editing") the keyboard starts, ringed, on the button that changes nothing; without
    // such a button nothing is chosen until Tab reaches one. Done again as each button is made:
    // the dialog is built between frames, and may open before its buttons are all there. A
    // button the reader has already moved to keeps the keyboard.
    function takeKeyboard() {
        for (let i = 0; i < buttons.count; ++i) {
            if (buttons.itemAt(i)?.activeFocus)
                return
        }
        if (Alerts.buttons.length === 1)
            buttons.itemAt(0)?.forceActiveFocus()
        else if (Alerts.cancelButton >= 0)
            buttons.itemAt(Alerts.cancelButton)?.forceActiveFocus(Qt.TabFocusReason)
        else
            dialog.contentItem.forceActiveFocus()
    }
    onOpened: takeKeyboard()

    footer: DialogButtonBox {
        id: buttonBox
        Accessible.ignored: true // a row of buttons, not a list of tabs
        background: null // the card's own, border included, shows through
        Repeater {
            id: buttons
            model: Alerts.buttons
            onItemAdded: if (dialog.opened) dialog.takeKeyboard()
            delegate: DialogButton {
                required property string modelData
                required property int index
                objectName: "alertButton-" + modelData
                text: modelData
                onClicked: Alerts.dismiss(index)
            }
        }
    }
}
