pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The notes list: sorted and searched by subject, date or note text.
ScreenPanel {
    id: root
    objectName: "NotesTableView"
    title: "Notes"
    readonly property var unwindTargets: ["unwindToNotesSegue"]
    function unwind(identifier: string) { controller.unwindToNotesSegue() }

    NotesTableViewController { id: controller }
    StackView.onActivating: {
        controller.viewWillAppear()
        table.restore()
    }

    header: NavigationBar {
        title: root.title
        onBackClicked: root.StackView.view.pop()
        center: SegmentedControl {
            objectName: "segment"
            anchors.centerIn: parent
            model: controller.segmentTitles
            currentIndex: controller.segmentIndex
            segmentWidth: Math.floor(Math.min(90, (root.width - 140) / 3))
            onActivated: index => controller.segmentedControlAction(index)
        }
        BarButton {
            objectName: "AddButton"
            text: "+"
            font.pixelSize: 26
            Accessible.name: qsTr("New Note")
            onClicked: controller.AddButtonClicked()
        }
    }

    background: Rectangle { color: "white" }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TextField {
            id: searchField
            objectName: "searchField"
            Layout.fillWidth: true
            Layout.margins: 8
            placeholderText: controller.placeholder
            inputMethodHints: Qt.ImhNoPredictiveText
            Accessible.role: Accessible.EditableText
            Accessible.name: controller.placeholder
            onTextChanged: controller.updateSearchResults(text)
        }

        TableList {
            id: table
            objectName: "table"
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: 6
            model: controller.rows
            Accessible.name: root.title
            emptyText: controller.searchText.length > 0
                       ? qsTr("No notes match.")
                       : qsTr("No notes yet. Tap + to write one.")
            Keys.onDeletePressed: if (currentIndex >= 0) controller.deleteRow(currentIndex)
            delegate: NotesTableViewCell {
                required property int index
                objectName: "row-" + index
                width: table.width
                onClicked: {
                    table.remember(index)
                    controller.didSelectRowAt(index)
                }
                onDeleteClicked: controller.deleteRow(index)
            }
        }
    }

    footer: BottomBar {
        objectName: "undoBar"
        visible: controller.canUndoDelete
        Timer {
            // The deletion is final once the undo bar goes; each deletion gets its full time.
            id: undoTimer
            interval: 5000
            onTriggered: controller.forgetDeletedNote()
        }
        Connections {
            target: controller
            function onCanUndoDeleteChanged() {
                if (controller.canUndoDelete)
                    undoTimer.restart()
                else
                    undoTimer.stop()
            }
        }
        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 4
            Label {
                Layout.fillWidth: true
                text: qsTr("Note deleted")
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            BarButton {
                objectName: "UndoButton"
                text: qsTr("Undo")
                onClicked: controller.undoDelete()
            }
        }
    }
}
