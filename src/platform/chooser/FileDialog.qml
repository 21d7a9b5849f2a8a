import Qt.labs.folderlistmodel
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Dialogs.quickimpl
import QtQuick.Layouts
import QtQuick.Templates as T
import Larkwells
// Qt's own chooser parts in their styled look (the module's names are their bare templates).
import "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml" as DialogsImpl

// The file chooser: the whole window on a phone, as a picker is there, and a card in the middle
// of a larger screen. On a narrow chooser the buttons get a line of their own, so the filter box
// keeps its whole text.
FileDialogImpl {
    id: control

    readonly property bool fullScreen: parent !== null && (parent.width < 600 || parent.height < 560)
    readonly property bool narrow: width < 520

    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? (parent.height - height) / 2 : 0
    width: parent ? (fullScreen ? parent.width : Math.min(640, parent.width - 96)) : 600
    height: parent ? (fullScreen ? parent.height : Math.min(560, parent.height - 96)) : 400
    leftPadding: 16
    rightPadding: 16
    bottomPadding: 12

    standardButtons: T.Dialog.Open | T.Dialog.Cancel
    // Made before it has a window to take the app's colours from.
    Material.accent: Theme.tint

    FileDialogImpl.buttonBox: buttonBox
    FileDialogImpl.nameFiltersComboBox: nameFiltersComboBox
    FileDialogImpl.fileDialogListView: fileDialogListView
    FileDialogImpl.breadcrumbBar: breadcrumbBar
    FileDialogImpl.fileNameLabel: fileNameLabel
    FileDialogImpl.fileNameTextField: fileNameTextField

    background: DialogCard {
        radius: control.fullScreen ? 0 : 4
        border.width: control.fullScreen ? 0 : 1
    }

    header: ColumnLayout {
        spacing: 8

        Label {
            text: control.title
            visible: control.title.length > 0
            wrapMode: Text.Wrap
            font.bold: true
            font.pixelSize: 16
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 16
            Layout.fillWidth: true
        }

        DialogsImpl.FolderBreadcrumbBar {
            id: breadcrumbBar
            dialog: control
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.fillWidth: true
            Layout.maximumWidth: parent.width - 32
        }
    }

    contentItem: ListView {
        id: fileDialogListView
        objectName: "fileDialogListView"
        clip: true
        ScrollBar.vertical: ScrollBar {}
        model: FolderListModel {
            folder: control.currentFolder
            nameFilters: control.selectedNameFilter.globs
            showDirsFirst: PlatformTheme.themeHint(PlatformTheme.ShowDirectoriesFirst)
            sortCaseSensitive: false
        }
        delegate: DialogsImpl.FileDialogDelegate {
            id: row
            objectName: "fileDialogDelegate" + row.index
            width: fileDialogListView.width
            highlighted: ListView.isCurrentItem
            dialog: control
            fileDetailRowWidth: row.width
        }
    }

    // Two columns of label and field ("File name" when saving, then "Filter"); the buttons beside
    // the filter, or under it on a narrow chooser.
    footer: GridLayout {
        columns: control.narrow ? 2 : 3
        columnSpacing: 16
        rowSpacing: 4

        Label {
            id: fileNameLabel
            text: qsTr("File name")
            visible: false
            Layout.row: 0
            Layout.column: 0
            Layout.topMargin: 12
            Layout.leftMargin: 16
        }
        TextField {
            id: fileNameTextField
            objectName: "fileNameTextField"
            text: control.fileName
            visible: false
            Layout.row: 0
            Layout.column: 1
            Layout.columnSpan: control.narrow ? 1 : 2
            Layout.topMargin: 12
            Layout.rightMargin: 16
            Layout.fillWidth: true
        }
        Label {
            text: qsTr("Filter")
            Layout.row: 1
            Layout.column: 0
            Layout.topMargin: fileNameTextField.visible ? 0 : 12
            Layout.leftMargin: 16
        }
        ComboBox {
            id: nameFiltersComboBox
            model: control.nameFilters
            flat: true
            verticalPadding: 0
            topInset: 0
            bottomInset: 0
            Layout.row: 1
            Layout.column: 1
            Layout.topMargin: fileNameTextField.visible ? 0 : 12
            Layout.rightMargin: control.narrow ? 16 : 0
            Layout.fillWidth: true
        }
        DialogButtonBox {
            id: buttonBox
            standardButtons: control.standardButtons
            spacing: 12
            padding: 0
            topInset: 0
            bottomInset: 0
            background: null
            Layout.row: control.narrow ? 2 : 1
            Layout.column: control.narrow ? 0 : 2
            Layout.columnSpan: control.narrow ? 2 : 1
            Layout.alignment: Qt.AlignRight
            Layout.topMargin: fileNameTextField.visible && !control.narrow ? 0 : 12
            Layout.rightMargin: 16
        }
    }

    Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, 0.3)
    }
}
