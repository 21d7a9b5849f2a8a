import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Larkwells

// The bar at the top of a screen: a back button, a title (or a title item) and trailing buttons.
// Escape, Alt+Left and the platform's Back key do what the back button does.
ToolBar {
    id: bar
    property string title
    property bool showBack: true
    // Replaces the title label when given (for example a segmented control).
    property alias center: centerSlot.data
    default property alias trailing: trailingRow.data
    signal backClicked()

    Material.background: Theme.cellColor
    Material.foreground: "black"
    // Flat, as a bar over unscrolled content is: the style's shadow is drawn through an
    // offscreen layer, which cost a screen's first frame more than its whole bar.
    Material.elevation: 0

    Shortcut {
        sequences: ["Esc", "Alt+Left", "Back"]
        enabled: bar.showBack && bar.visible
        onActivated: bar.backClicked()
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 4
        anchors.rightMargin: 4
        spacing: 4
        BarButton {
            objectName: "backButton"
            visible: bar.showBack
            text: qsTr("‹ Back")
            Accessible.name: qsTr("Back")
            onClicked: bar.backClicked()
        }
        Item {
            id: centerSlot
            Layout.fillWidth: true
            Layout.fillHeight: true
            Heading {
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width)
                visible: centerSlot.children.length === 1
                text: bar.title
                elide: Text.ElideRight
            }
        }
        Row {
            id: trailingRow
            spacing: 2
        }
    }
}
