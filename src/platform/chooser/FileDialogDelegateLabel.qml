import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl

// A file row of the file chooser: its icon and name, and under the name its size at the left
// and its date at the right of the row itself.
Item {
    id: root
    implicitWidth: nameRow.implicitWidth
    implicitHeight: column.implicitHeight

    // The chooser's row (a file dialog delegate, whose file properties its style declares).
    required property var delegate
    // Given by the chooser (the filter box's width); the row's own width is used instead.
    required property int fileDetailRowWidth
    property color fileDetailRowTextColor

    // Qt's row has no text of its own, so a screen reader found it nameless: it is the file's
    // name (this row shows the name itself, not the row's text).
    Binding {
        target: root.delegate
        property: "text"
        value: root.delegate.fileName
    }

    Column {
        id: column
        width: root.width
        y: (root.height - height) / 2

        Row {
            id: nameRow
            spacing: root.delegate.spacing

            IconImage {
                id: iconImage
                source: root.delegate.icon.source
                sourceSize.width: root.delegate.icon.width
                sourceSize.height: root.delegate.icon.height
                width: root.delegate.icon.width
                height: root.delegate.icon.height
                color: root.delegate.icon.color
                y: (parent.height - height) / 2
            }
            Label {
                width: Math.min(implicitWidth, root.width - iconImage.width - nameRow.spacing)
                text: root.delegate.fileName
                elide: Text.ElideMiddle
                Accessible.ignored: true // the row bears the name
                color: root.delegate.icon.color
                y: (parent.height - height) / 2
            }
        }

        Item {
            x: iconImage.width + root.delegate.spacing
            width: root.width - x
            implicitHeight: Math.max(size.implicitHeight, date.implicitHeight)

            Label {
                id: size
                objectName: "fileSize"
                text: root.delegate.locale.formattedDataSize(root.delegate.fileSize)
                font.pixelSize: root.delegate.font.pixelSize * 0.75
                color: root.fileDetailRowTextColor
            }
            Label {
                id: date
                objectName: "fileDate"
                x: Math.max(size.width + 8, parent.width - width)
                text: Qt.formatDateTime(root.delegate.fileModified)
                font.pixelSize: root.delegate.font.pixelSize * 0.75
                color: root.fileDetailRowTextColor
            }
        }
    }
}
