import QtQuick
import QtQuick.Controls
import Larkwells

// The favourite mark: the check box with its "Fav" label, one 44-point target for touch,
// Space and a screen reader alike. `valueChanged` follows every change the user makes;
// `setCheckState` shows a state without telling anyone.
FocusScope {
    id: favorite
    property bool interactive: true
    property string fontFamily
    property real fontSize: 16
    readonly property int checkState: box.checkState
    signal valueChanged(int checkState)
    // A tap on a box that only shows the mark (a list row opens instead).
    signal passiveTap()

    // Shows this mark, drawn in once the box is made; for rows that follow their page.
    property bool checked: false
    // Whether a change of `checked` is drawn in; a list row coming into view shows its mark at once.
    property bool animates: true
    // Set once made: a box shows the mark it is made with at once.
    property bool made: false
    onCheckedChanged: box.setCheckState(checked ? 1 : 0, animates && made)
    Component.onCompleted: made = true

    function setCheckState(state: int, animated: bool) { box.setCheckState(state, animated) }
    function userToggle() {
        if (!interactive || !visible || !enabled)
            return
        box.toggleCheckState(true)
        valueChanged(box.checkState)
    }

    implicitWidth: Math.max(Theme.touchTarget, content.implicitWidth + 8)
    implicitHeight: Math.max(Theme.touchTarget, content.implicitHeight + 4)
    activeFocusOnTab: interactive
    Keys.onSpacePressed: userToggle()

    Accessible.role: Accessible.CheckBox
    Accessible.name: qsTr("Favorite")
    Accessible.checkable: interactive
    Accessible.checked: box.checkState === 1
    Accessible.onToggleAction: userToggle()
    Accessible.onPressAction: userToggle()

    Row {
        id: content
        anchors.centerIn: parent
        spacing: 6
        M13Checkbox {
            id: box
            objectName: "FavoriteCheckBox"
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 28
            implicitHeight: 28
            // The empty circle stands out from the cell colour.
            secondaryTintColor: "#6b6b6b"
            // The whole box above is the one focus and screen-reader target.
            activeFocusOnTab: false
            Accessible.ignored: true
        }
        Label {
            objectName: "FavoriteLabel"
            anchors.verticalCenter: parent.verticalCenter
            text: "Fav"
            color: "black"
            font.family: favorite.fontFamily || Theme.plainFontFamily
            font.pixelSize: favorite.fontSize
            Accessible.ignored: true // the box above is named "Favorite"
        }
    }

    // Above the box: the whole target, label included, acts as one.
    MouseArea {
        anchors.fill: parent
        onClicked: favorite.interactive ? favorite.userToggle() : favorite.passiveTap()
    }

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: "transparent"
        border.width: Theme.focusRingWidth
        border.color: Theme.tint
        visible: favorite.activeFocus
    }
}
