pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The search list: every page, narrowed as the user types a date or words of a page.
ScreenPanel {
    id: root
    objectName: "SearchTableView"
    // The segment is the bar's title; a screen reader names the screen by it.
    title: controller.segmentTitles[controller.segmentIndex]
    readonly property var unwindTargets: ["unwindSegue"]
    function unwind(identifier: string) { controller.unwindSegue() }
    property bool opened: false

    SearchTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: {
        controller.viewWillAppear()
        table.restoreAt(controller.openRow())
    }
    StackView.onActivated: {
        if (!opened)
            searchField.forceActiveFocus()
        opened = true
    }

    header: NavigationBar {
        onBackClicked: root.StackView.view.pop()
        center: SegmentedControl {
            objectName: "segment"
            anchors.centerIn: parent
            model: controller.segmentTitles
            currentIndex: controller.segmentIndex
            segmentWidth: Math.min(120, (root.width - 120) / 2)
            onActivated: index => controller.segmentedControlAction(index)
        }
    }

    background: Rectangle { color: "white" }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TextField {
            id: searchField
            objectName: "searchField"
            Layout.fillWidth: true
            Layout.margins: 8
            Layout.bottomMargin: 0
            text: controller.searchText
            placeholderText: controller.placeholder
            inputMethodHints: Qt.ImhNoPredictiveText
            Accessible.role: Accessible.EditableText
            Accessible.name: controller.placeholder
            Accessible.description: controller.matchCountText
            onTextEdited: controller.searchText = text
            // Escape first empties the field; on an empty field it goes back.
            Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape && text.length > 0
            Keys.onEscapePressed: controller.searchText = ""
            Keys.onDownPressed: table.forceActiveFocus()
            Keys.onReturnPressed: table.forceActiveFocus()
            Keys.onEnterPressed: table.forceActiveFocus()
        }

        Label {
            objectName: "matchCount"
            Layout.fillWidth: true
            Layout.leftMargin: 12
            Layout.rightMargin: 12
            visible: text.length > 0
            text: controller.matchCountText
            color: Theme.quietText
            font.pixelSize: 13
            Accessible.role: Accessible.StatusBar
            Accessible.name: text
        }

        TableList {
            id: table
            objectName: "table"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: 6 // as the other lists' tables sit
            model: controller.rows
            Accessible.name: controller.segmentTitles[controller.segmentIndex]
            delegate: OGMNTableViewCell {
                required property int index
                objectName: "row-" + index
                width: table.width
                fontName: controller.appearance.ListFontName
                fontSize: controller.appearance.ListFontSize
                wallpaper: controller.appearance.wallpaper
                onClicked: {
                    table.remember(index)
                    controller.didSelectRowAt(index)
                }
            }
        }
    }
}
