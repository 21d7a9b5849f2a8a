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
    // An alert without buttons closes with Escape or a tap outside, so it can never trap the reader.
    closePolicy: Alerts.buttons.length > 0 ? Popup.NoAutoClose : Popup.CloseOnEscape | Popup.CloseOnPressOutside
    onClosed: if (Alerts.showing && Alerts.buttons.length === 0) Alerts.dismiss(-1)
    // Deferred, so an alert raised while the window is still being built opens once it is shown.
    function follow() {
        if (Alerts.showing)
            open()
        else
            close()
    }
    Component.onCompleted: deferred.restart()
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
    background: Rectangle {
        radius: 4
        color: "white"
        border.width: 1
        border.color: "#9a9a9a"
    }
    width: Math.min(parent ? parent.width - 48 : 360, 420)

    contentItem: Label {
        text: Alerts.message
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.AlertMessage
        Accessible.name: Alerts.title
        Accessible.description: text
    }

    footer: DialogButtonBox {
        Repeater {
            model: Alerts.buttons
            delegate: Button {
                required property string modelData
                required property int index
                objectName: "alertButton-" + modelData
                text: modelData
                flat: true
                font.capitalization: Font.MixedCase // the alert's own spelling ("Ok")
                Accessible.name: text
                Accessible.onPressAction: if (visible && enabled) clicked()
                onClicked: Alerts.dismiss(index)
            }
        }
    }
}
