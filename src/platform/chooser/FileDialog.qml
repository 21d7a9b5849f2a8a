pragma ComponentBehavior: Bound
import Qt.labs.folderlistmodel
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Dialogs.quickimpl as DialogsImpl
import QtQuick.Layouts
import QtQuick.Templates as T
import Larkwells

// The file chooser: the whole window on a phone, as a picker is there, and a card in the middle
// of a larger screen. On a narrow chooser the buttons get a line of their own, so the filter box
// keeps its whole text.
DialogsImpl.FileDialogImpl {
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

    // The screen behind is shaded and takes no taps while the chooser is open.
    modal: true
    Component.onCompleted: ModalPopups.watch(control)
    standardButtons: T.Dialog.Open | T.Dialog.Cancel
    // Made before it has a window to take the app's colours from.
    Material.accent: Theme.tint

    DialogsImpl.FileDialogImpl.buttonBox: buttonBox
    DialogsImpl.FileDialogImpl.nameFiltersComboBox: nameFiltersComboBox
    DialogsImpl.FileDialogImpl.fileDialogListView: fileDialogListView
    DialogsImpl.FileDialogImpl.breadcrumbBar: breadcrumbBar
    DialogsImpl.FileDialogImpl.fileNameLabel: fileNameLabel
    DialogsImpl.FileDialogImpl.fileNameTextField: fileNameTextField

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

        ChooserPath {
            id: breadcrumbBar
            dialog: control
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.fillWidth: true
        }
    }

    contentItem: ListView {
        id: fileDialogListView
        objectName: "fileDialogListView"
        clip: true
        ScrollBar.vertical: ScrollBar {}
        model: FolderListModel {
            id: folderModel
            folder: control.currentFolder
            nameFilters: control.selectedNameFilter.globs
            showDirsFirst: PlatformTheme.themeHint(PlatformTheme.ShowDirectoriesFirst)
            sortCaseSensitive: false
        }
        Label {
            anchors.centerIn: parent
            visible: fileDialogListView.count === 0 && folderModel.status === FolderListModel.Ready
            text: qsTr("No files here")
            color: control.Material.hintTextColor
        }
        delegate: ChooserRow {
            width: fileDialogListView.width
            highlighted: ListView.isCurrentItem
            dialog: control
            foldersOpenOnTap: control.fullScreen
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
            background: PressTint {
                implicitHeight: 36
                pressed: nameFiltersComboBox.down
                focusRing: nameFiltersComboBox.visualFocus
            }
            // A plain card under the open list: the style's is drawn through a shadow layer that
            // the software renderer leaves blank, and the choices showed over the chooser.
            popup.background: Rectangle {
                radius: 2
                color: "white"
                border.color: Theme.quietText
            }
            Layout.row: 1
            Layout.column: 1
            Layout.topMargin: fileNameTextField.visible ? 0 : 12
            Layout.rightMargin: control.narrow ? 16 : 0
            Layout.fillWidth: true
        }
        ChooserButtons {
            id: buttonBox
            standardButtons: control.standardButtons
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
