pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// One wallpaper set as rows of pictures, each marked "Used" or "Not Used".
ScreenPanel {
    id: root
    required property WallpaperTableViewController controller
    // Names the parts of each row: "Viewer" for the reader set, "List" for the list set.
    required property string outletPrefix
    // How the rows show their picture: whole, or cut to a wide band as list rows show it.
    property bool wholePicture: true
    title: controller.title

    Component.onCompleted: controller.viewDidLoad()

    header: NavigationBar {
        title: root.controller.title
        onBackClicked: root.StackView.view.pop()
    }

    background: Rectangle { color: "white" }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        Label {
            objectName: "NoneInUseLabel"
            Layout.fillWidth: true
            Layout.margins: 10
            visible: root.controller.noneInUse || root.controller.lastAloneInUse
            text: root.controller.noneInUse ? qsTr("No wallpaper of this set is in use")
                                            : qsTr("The last wallpaper alone is hardly ever shown: turn on another")
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            font.pixelSize: 16
            color: Theme.quietText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        TableList {
            id: table
            objectName: "table"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: 6
            model: root.controller.WallpaperList
            Accessible.name: root.controller.title
            delegate: WallpaperTableViewCell {
                width: table.width
                outletPrefix: root.outletPrefix
                wholePicture: root.wholePicture
                onCheckBoxChanged: (row, checkState) => root.controller.CheckBoxChanged(row, checkState)
            }
        }
    }
}
