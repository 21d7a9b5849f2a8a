pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The new-article screen: a name and a text, saved as a new about article.
ScreenPanel {
    id: root
    objectName: "AboutNewView"
    title: qsTr("New Article")

    AboutNewViewController { id: controller }

    header: NavigationBar {
        title: root.title
        onBackClicked: controller.BackToSpecialDays()
        BarButton {
            id: saveButton
            objectName: "SaveButton"
            text: qsTr("Save")
            onClicked: controller.SaveAboutItem(nameField.text, textView.text)
        }
    }

    background: Rectangle { color: "white" }

    TapHandler {
        onTapped: root.forceActiveFocus()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 8

        TextField {
            id: nameField
            objectName: "NameTextField"
            Layout.fillWidth: true
            placeholderText: qsTr("Name")
            font.pixelSize: 17
            focus: true
            Accessible.name: qsTr("Name")
            Accessible.description: hint.text
        }
        Label {
            id: hint
            objectName: "NameHint"
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            color: Theme.quietText
            font.pixelSize: 14
            text: qsTr("An article shows a heading and its text only when its name contains “Good Morning” or “Good Night” together with “Preface”, “Acknowledgements” or “Authors”. With any other name it opens empty.")
        }
        ScrollView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            TextArea {
                id: textView
                objectName: "AboutItemTextView"
                wrapMode: TextEdit.Wrap
                textFormat: TextEdit.PlainText
                placeholderText: qsTr("Text")
                font.pixelSize: 17
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("Text")
                // Tab leaves the text rather than typing a tab.
                KeyNavigation.tab: saveButton
                KeyNavigation.backtab: nameField
            }
        }
    }
}
