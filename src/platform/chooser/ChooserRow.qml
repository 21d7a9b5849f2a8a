import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Dialogs.quickimpl as DialogsImpl
import QtQuick.Layouts
import QtQuick.Shapes

// A row of the file chooser: a folder or page sign and the name, and under the name the file's
// size at the left and its date at the right of the row itself. A tap marks the row and a second
// tap (or Enter) opens it; on a phone one tap opens a folder, as a phone's picker does. A screen
// reader's press opens it at once.
DialogsImpl.FileDialogDelegate {
    id: row

    required property int index
    required property string fileName
    required property url fileUrl
    required property int fileSize
    required property date fileModified
    required property bool fileIsDir

    property bool foldersOpenOnTap: false
    readonly property color ink: enabled ? Material.foreground : Material.hintTextColor

    objectName: "file-" + fileName
    file: fileUrl
    Accessible.name: fileName
    padding: 16
    verticalPadding: 8
    spacing: 16
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)

    Accessible.onPressAction: if (row.enabled) row.doubleClicked()
    onClicked: if (foldersOpenOnTap && fileIsDir) doubleClicked()

    // Laid out without ids of its own: ids inside a control's content would build it at once.
    contentItem: ColumnLayout {
        spacing: 0

        RowLayout {
            spacing: row.spacing
            Shape {
                implicitWidth: 20
                implicitHeight: 20
                ShapePath {
                    strokeColor: row.ink
                    strokeWidth: 1.5
                    fillColor: "transparent"
                    joinStyle: ShapePath.RoundJoin
                    // a folder with its tab, or a page with a folded corner
                    PathPolyline {
                        path: row.fileIsDir
                              ? [Qt.point(2, 5), Qt.point(8, 5), Qt.point(10, 7), Qt.point(18, 7),
                                 Qt.point(18, 16), Qt.point(2, 16), Qt.point(2, 5)]
                              : [Qt.point(4, 2), Qt.point(12, 2), Qt.point(16, 6), Qt.point(16, 18),
                                 Qt.point(4, 18), Qt.point(4, 2), Qt.point(12, 2), Qt.point(12, 6),
                                 Qt.point(16, 6)]
                    }
                }
            }
            Label {
                text: row.fileName
                elide: Text.ElideMiddle
                color: row.ink
                Layout.fillWidth: true
                Accessible.ignored: true // the row bears the name
            }
        }

        // the size under the name, the date at the row's right
        RowLayout {
            spacing: 8
            Layout.leftMargin: 20 + row.spacing
            Label {
                objectName: "fileSize"
                visible: !row.fileIsDir
                text: Qt.locale().formattedDataSize(row.fileSize)
                font.pixelSize: row.font.pixelSize * 0.75
                color: row.Material.hintTextColor
            }
            Item { Layout.fillWidth: true }
            Label {
                objectName: "fileDate"
                text: Qt.formatDateTime(row.fileModified)
                font.pixelSize: row.font.pixelSize * 0.75
                color: row.Material.hintTextColor
            }
        }
    }

    background: Rectangle {
        implicitHeight: row.Material.delegateHeight
        color: row.down ? row.Material.rippleColor
             : row.highlighted ? Qt.rgba(row.Material.accentColor.r, row.Material.accentColor.g,
                                          row.Material.accentColor.b, 0.12)
             : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: row.Material.accentColor
    }
}
