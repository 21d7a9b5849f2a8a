pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The special days: the morning poems, then the night poems, each block under its heading.
ScreenPanel {
    id: root
    objectName: "SpecialDaysTableView"
    title: controller.title
    readonly property var unwindTargets: ["unwindToSpecialDaysSegue"]
    function unwind(identifier: string) { controller.unwindToSpecialDaysSegue() }

    SpecialDaysTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: table.restore()

    header: NavigationBar {
        title: controller.title
        onBackClicked: root.StackView.view.pop()
    }

    background: Rectangle { color: "white" }

    TableList {
        id: table
        objectName: "table"
        anchors.fill: parent
        model: controller.SpecialDayList
        Accessible.name: controller.title
        emptyText: qsTr("No special days.")
        section.property: "section"
        // Loaded from its own file: Qt 6.4 cannot create a section heading from a component
        // bound to this page.
        section.delegate: Qt.createComponent("SpecialDaySectionHeading.qml")
        delegate: SpecialDaysTableViewCell {
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
