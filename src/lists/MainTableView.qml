pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The page list: today's pages, all, morning, night or favourite pages.
Page {
    id: root
    objectName: "MainTableView"
    readonly property var unwindTargets: ["unwindSegue"]
    function unwind(identifier: string) { controller.unwindSegue() }

    MainTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: controller.viewWillAppear()

    header: NavigationBar {
        onBackClicked: root.StackView.view.pop()
        center: Row {
            id: segment
            objectName: "segment"
            anchors.centerIn: parent
            spacing: -1
            ButtonGroup { id: segmentGroup }
            Repeater {
                model: controller.segmentTitles
                delegate: Button {
                    id: segmentButton
                    required property string modelData
                    required property int index
                    objectName: "segment-" + modelData
                    checkable: true
                    checked: controller.segmentIndex === index
                    ButtonGroup.group: segmentGroup
                    text: modelData
                    width: Math.min(68, (root.width - 120) / 5)
                    height: 34
                    font.pixelSize: 15
                    contentItem: Label {
                        text: segmentButton.text
                        font: segmentButton.font
                        color: segmentButton.checked ? "white" : "#0026a6"
                        horizontalAlignment: Text.AlignHCenter
                        verticalAlignment: Text.AlignVCenter
                    }
                    background: Rectangle {
                        color: segmentButton.checked ? "#0026a6" : (segmentButton.down ? "#d7def5" : "white")
                        border.color: "#0026a6"
                        border.width: 1
                        radius: 6
                    }
                    Accessible.role: Accessible.RadioButton
                    Accessible.name: text
                    Accessible.checkable: true
                    Accessible.checked: checked
                    Accessible.onPressAction: clicked()
                    onClicked: controller.segmentedControlAction(index)
                }
            }
        }
    }

    background: Rectangle { color: "white" }

    ListView {
        id: table
        objectName: "table"
        anchors.fill: parent
        anchors.margins: 6
        model: controller.PoemList
        cacheBuffer: 650
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: controller.segmentTitles[controller.segmentIndex]
        delegate: GMNTableViewCell {
            required property int index
            objectName: "row-" + index
            width: table.width
            fontName: controller.ListFontName
            fontSize: controller.ListFontSize
            wallpaper: controller.wallpaper
            onClicked: controller.didSelectRowAt(index)
        }
    }

    Label {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: table.count === 0
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        font.pixelSize: 17
        color: "#555"
        text: controller.segmentIndex === 4
              ? qsTr("No favorites yet. Tick the box on a page you love and it will wait for you here.")
              : qsTr("No pages for this day.")
    }
}
