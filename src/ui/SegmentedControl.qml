pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// One exclusive choice among a few titled segments, drawn as a single rounded pill. Touch,
// the arrow keys and a screen reader's press all go through `activated`, which the screen
// handles exactly as a tap; the shown choice follows `currentIndex`, which the screen sets.
FocusScope {
    id: control
    required property var model
    property int currentIndex: 0
    property real segmentWidth: 68
    property real fontSize: 15
    signal activated(int index)

    function activate(index: int) {
        if (index >= 0 && index < repeater.count && index !== currentIndex)
            activated(index)
    }

    implicitWidth: row.implicitWidth
    implicitHeight: 34
    activeFocusOnTab: true
    Accessible.role: Accessible.PageTabList
    Accessible.name: model[currentIndex] ?? ""

    Keys.onLeftPressed: activate(currentIndex - 1)
    Keys.onRightPressed: activate(currentIndex + 1)

    Rectangle {
        id: frame
        anchors.fill: parent
        radius: 7
        color: "white"
        border.color: Theme.tint
        border.width: 1
    }

    Row {
        id: row
        anchors.fill: parent
        Repeater {
            id: repeater
            model: control.model
            // A tab button, so a screen reader hears tabs: a plain button's role is reset to
            // "push button" when the accessibility bus connects. Never checkable: the shown
            // choice follows currentIndex only.
            delegate: TabButton {
                id: segment
                required property string modelData
                required property int index
                readonly property bool selected: index === control.currentIndex
                readonly property bool isEnd: index === 0 || index === repeater.count - 1
                readonly property color fill: selected ? Theme.tint : (down ? Theme.tintPressed : "transparent")
                objectName: "segment-" + modelData
                width: control.segmentWidth
                height: control.height
                focusPolicy: Qt.NoFocus
                checkable: false
                leftPadding: 2
                rightPadding: 2
                text: modelData
                contentItem: Label {
                    text: segment.text
                    font.pixelSize: control.fontSize
                    color: segment.selected ? "white" : Theme.tint
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    Accessible.ignored: true
                }
                background: Item {
                    // Only the end segments round their outer corners, so the pill has no seams.
                    Rectangle {
                        anchors.fill: parent
                        anchors.margins: 1
                        radius: segment.isEnd ? frame.radius - 1 : 0
                        color: segment.fill
                    }
                    Rectangle {
                        visible: segment.isEnd && repeater.count > 1
                        x: segment.index === 0 ? parent.width / 2 : 1
                        y: 1
                        width: parent.width / 2 - 1
                        height: parent.height - 2
                        color: segment.fill
                    }
                    Rectangle {
                        visible: segment.index > 0
                        width: 1
                        height: parent.height
                        color: Theme.tint
                    }
                }
                Accessible.role: Accessible.PageTab
                Accessible.name: text
                Accessible.selectable: true
                Accessible.selected: selected
                Accessible.onPressAction: if (control.visible && control.enabled) control.activate(index)
                onClicked: control.activate(index)
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: -3
        radius: frame.radius + 3
        color: "transparent"
        border.width: Theme.focusRingWidth
        border.color: Theme.tint
        visible: control.activeFocus
    }
}
