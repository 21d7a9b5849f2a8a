pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// A wallpaper row: the picture, large enough to judge, and its "Used" box. A tap anywhere on
// the row, Space or Enter, or a screen reader's toggle flips the box.
ListCell {
    id: cell
    required property int index
    required property string imageName
    required property url image
    required property int rowCheckState
    required property string useLabel
    property string outletPrefix
    property bool wholePicture: true
    signal checkBoxChanged(int row, int checkState)

    function userToggle() {
        box.toggleCheckState(true)
        checkBoxChanged(index, box.checkState)
    }

    objectName: "row-" + index
    // Taller on a wide screen, where a phone-sized picture would look lost.
    rowHeight: Math.max(184, Math.min(320, width / 3))
    onClicked: userToggle()
    onRowCheckStateChanged: box.setCheckState(rowCheckState, true)
    // A checkable button following its row's state, which is what a screen reader hears: on
    // Qt 6.4 a button hands over its own checked state, whatever Accessible.checked says. A click
    // toggles the button by itself; the row's state, which the click then changes, stays shown.
    checkable: true
    checked: rowCheckState === 1
    onToggled: checked = Qt.binding(() => cell.rowCheckState === 1)

    Accessible.role: Accessible.CheckBox
    Accessible.name: imageName + ", " + useLabel
    Accessible.onToggleAction: if (cell.visible && cell.enabled) cell.userToggle()

    // Beside the cell's own (empty) label, so the box can be named.
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: cell.leftPadding
        anchors.rightMargin: cell.rightPadding
        anchors.topMargin: cell.topPadding
        anchors.bottomMargin: cell.bottomPadding
        spacing: 12
        Image {
            objectName: cell.outletPrefix + "ImageView"
            Layout.fillWidth: true
            Layout.fillHeight: true
            // A band is drawn only as wide as the row shows it, cut as list rows cut it: drawn
            // whole it would be four times the pixels, and as many milliseconds.
            // A picture missing from the bundle leaves its row blank.
            source: String(cell.image) === "" ? "" : cell.wholePicture ? cell.image
                    : width > 0 ? "image://covering/" + cell.imageName : ""
            asynchronous: true
            fillMode: cell.wholePicture ? Image.PreserveAspectFit : Image.Stretch
            // The row's own height, known before the layout sizes the picture: a picture asked
            // for at no size would be decoded whole.
            sourceSize.height: (cell.rowHeight - cell.topPadding - cell.bottomPadding) * Screen.devicePixelRatio
            sourceSize.width: cell.wholePicture ? 0 : Math.round(width * Screen.devicePixelRatio)
            Accessible.ignored: true
        }
        ColumnLayout {
            Layout.alignment: Qt.AlignVCenter
            Layout.preferredWidth: 76
            spacing: 4
            M13Checkbox {
                id: box
                objectName: cell.outletPrefix + "CheckBox"
                Layout.alignment: Qt.AlignHCenter
                implicitWidth: 36
                implicitHeight: 36
                activeFocusOnTab: false
                secondaryTintColor: "#6b6b6b"
                Accessible.ignored: true
                Component.onCompleted: setCheckState(cell.rowCheckState, false)
                onValueChanged: cell.checkBoxChanged(cell.index, checkState)
            }
            Label {
                objectName: "UseLabel"
                Layout.alignment: Qt.AlignHCenter
                text: cell.useLabel
                color: "black"
                font.pixelSize: 15
            }
        }
    }
}
