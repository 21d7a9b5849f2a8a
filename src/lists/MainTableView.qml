pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The page list: today's pages, all, morning, night or favourite pages.
Page {
    id: root
    objectName: "MainTableView"
    readonly property var unwindTargets: ["unwindSegue"]
    function unwind(identifier: string) { controller.unwindSegue() }

    MainTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: {
        controller.viewWillAppear()
        table.restore()
    }

    header: NavigationBar {
        onBackClicked: root.StackView.view.pop()
        center: SegmentedControl {
            objectName: "segment"
            anchors.centerIn: parent
            model: controller.segmentTitles
            currentIndex: controller.segmentIndex
            segmentWidth: Math.floor(Math.min(68, (root.width - 120) / 5))
            fontSize: segmentWidth < 56 ? 13 : 15 // "Today" whole on a small phone
            onActivated: index => controller.segmentedControlAction(index)
        }
    }

    background: Rectangle { color: "white" }

    TableList {
        id: table
        objectName: "table"
        anchors.fill: parent
        model: controller.PoemList
        Accessible.name: controller.segmentTitles[controller.segmentIndex]
        emptyText: controller.segmentIndex === 4
                   ? qsTr("No favorites yet. Tick the box on a page you love and it will wait for you here.")
                   : qsTr("No pages for this day.")
        delegate: GMNTableViewCell {
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
            onFavoriteChanged: checkState => controller.FavoriteCheckBoxChanged(index, checkState)
        }
    }
}
