pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Dialogs.quickimpl as DialogsImpl
import QtQuick.Shapes
import Larkwells

// The chooser's path: an "Up" button, then a button for each folder from the top down to the
// one shown, scrolled so that the shown folder stays in view on a narrow screen.
DialogsImpl.FolderBreadcrumbBar {
    id: control

    implicitWidth: implicitContentWidth + (upButton ? upButton.implicitWidth + upButtonSpacing : 0)
                   + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, upButton ? upButton.implicitHeight : 0)
                    + topPadding + bottomPadding
    upButtonSpacing: 8
    padding: 1

    contentItem: ListView {
        currentIndex: control.currentIndex
        model: control.contentModel
        orientation: ListView.Horizontal
        snapMode: ListView.SnapToItem
        highlightMoveDuration: 0
        interactive: false
        clip: true
    }

    buttonDelegate: DialogButton {
        required property int index
        required property string folderName
        text: folderName
        leftPadding: 8
        rightPadding: 8
        // the style's least width spaced a one-letter folder such as "/" far from the next
        implicitWidth: Math.max(40, implicitContentWidth + leftPadding + rightPadding)
    }

    separatorDelegate: Item {
        width: 12
        height: control.contentItem.height
        Shape {
            anchors.centerIn: parent
            width: 6
            height: 10
            ShapePath {
                strokeColor: control.Material.hintTextColor
                strokeWidth: 1.5
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                // a chevron pointing down the path
                PathPolyline { path: [Qt.point(1, 1), Qt.point(5, 5), Qt.point(1, 9)] }
            }
        }
    }

    upButton: DialogButton {
        objectName: "upButton"
        x: control.leftPadding
        y: control.topPadding
        width: height
        focusPolicy: Qt.TabFocus
        Accessible.name: qsTr("Up")
        ToolTip.visible: hovered
        ToolTip.text: qsTr("Up")
        Shape {
            anchors.centerIn: parent
            width: 16
            height: 16
            ShapePath {
                strokeColor: control.Material.foreground
                strokeWidth: 2
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                joinStyle: ShapePath.RoundJoin
                // an arrow pointing up
                PathMultiline {
                    paths: [[Qt.point(8, 15), Qt.point(8, 2)], [Qt.point(2, 8), Qt.point(8, 2), Qt.point(14, 8)]]
                }
            }
        }
    }

    textField: TextField {
        text: (control.dialog as DialogsImpl.FileDialogImpl)?.selectedFile ?? ""
    }
}
