pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The page list: today's pages, all, morning, night or favourite pages.
ScreenPanel {
    id: root
    objectName: "MainTableView"
    // The segment is the bar's title; a screen reader names the screen by it.
    title: controller.segmentTitles[controller.segmentIndex]
    readonly property var unwindTargets: ["unwindSegue"]
    // Built while the list waits, so a chosen page shows in the next frame.
    readonly property string likelySegue: "ViewPoemSegue"
    function unwind(identifier: string) { controller.unwindSegue() }

    MainTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: {
        controller.viewWillAppear()
        table.restoreAt(controller.openRow())
    }

    // The row "Go to Date" found, lit for a moment.
    property int litRow: -1
    Timer {
        id: unlight
        interval: 1500
        onTriggered: root.litRow = -1
    }
    function goTo(row: int) {
        if (row < 0)
            return
        table.forceActiveFocus()
        table.currentIndex = row
        table.positionViewAtIndex(row, ListView.Center)
        litRow = row
        unlight.restart()
    }
    function goToMonthDay(shown: date) {
        datePicker.close()
        goTo(controller.goToDate(shown.getMonth() + 1, shown.getDate()))
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
        BarButton {
            id: goToDateButton
            objectName: "GoToDateButton"
            // On a phone the bar has room for a small calendar only.
            readonly property bool compact: root.width < 600
            text: compact ? "" : qsTr("Go to Date")
            Accessible.name: qsTr("Go to Date")
            implicitWidth: compact ? 40 : implicitContentWidth + leftPadding + rightPadding
            Rectangle {
                anchors.centerIn: parent
                visible: goToDateButton.compact
                width: 22
                height: 20
                radius: 3
                color: "white"
                border.width: 2
                border.color: Theme.tint
                Rectangle {
                    width: parent.width
                    height: 7
                    radius: 3
                    color: Theme.tint
                }
            }
            onClicked: datePicker.show(controller.today())
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
            id: row
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
            Rectangle {
                objectName: "dateHighlight"
                anchors.fill: parent
                radius: Theme.cornerRadius
                color: Qt.rgba(Theme.tint.r, Theme.tint.g, Theme.tint.b, 0.15)
                border.width: 3
                border.color: Theme.tint
                opacity: root.litRow === row.index ? 1 : 0
                Behavior on opacity { NumberAnimation { duration: 300 } }
            }
        }
    }

    NoteDatePicker {
        id: datePicker
        objectName: "goToDatePicker"
        title: qsTr("Go to Date")
        parent: Overlay.overlay
        width: parent.width
        y: parent.height - height
        yearShown: false
        onDoneClicked: shown => root.goToMonthDay(shown)
        onTodayClicked: root.goToMonthDay(controller.today())
        onClosed: if (!table.activeFocus) goToDateButton.forceActiveFocus()
    }
}
