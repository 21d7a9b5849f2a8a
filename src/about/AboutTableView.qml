pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Larkwells

// The about list: the articles by name; "+" writes a new one.
ScreenPanel {
    id: root
    objectName: "AboutTableView"
    title: controller.title
    readonly property var unwindTargets: ["unwindToAboutSegue"]
    function unwind(identifier: string) { controller.unwindToAboutSegue() }

    AboutTableViewController { id: controller }
    Component.onCompleted: controller.viewDidLoad()
    StackView.onActivating: table.restore()

    header: NavigationBar {
        title: controller.title
        onBackClicked: controller.unwindToMain()
        BarButton {
            objectName: "NewArticleButton"
            text: "+"
            font.pixelSize: Theme.titleFontSize + 6
            Accessible.name: qsTr("New Article")
            onClicked: controller.NewArticle()
        }
        UndoImportButton {
            onImportUndone: controller.unwindToAboutSegue()
        }
    }

    background: Rectangle { color: "white" }

    TableList {
        id: table
        objectName: "table"
        anchors.fill: parent
        model: controller.AboutNames
        Accessible.name: controller.title
        emptyText: qsTr("No articles. Tap + to write one.")
        delegate: ListCell {
            id: cell
            required property int index
            required property string modelData
            objectName: "row-" + index
            width: table.width
            wallpaper: controller.appearance.wallpaper
            Accessible.name: modelData
            contentItem: Label {
                objectName: "NameLabel"
                text: cell.modelData
                color: "black"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                font.family: controller.appearance.ListFontName
                font.pixelSize: controller.appearance.ListFontSize
                Accessible.ignored: true // the row's name says it
            }
            onClicked: {
                table.remember(index)
                controller.didSelectRowAt(index)
            }
        }
    }
}
