import QtQuick
import QtQuick.Controls
import Larkwells

// The file chooser's "Open"/"Save" and "Cancel", drawn as the alerts' buttons are.
DialogButtonBox {
    spacing: 12
    padding: 0
    topInset: 0
    bottomInset: 0
    background: null
    delegate: DialogButton {}
}
