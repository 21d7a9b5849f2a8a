pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// A date picker docked at the bottom: month, day and (unless hidden) year wheels under a bar
// with "Done" and "Today". The wheels turn by touch, by Up/Down once focused (Tab moves between
// them), and by a screen reader's increase and decrease.
Popup {
    id: picker
    property date date: new Date()
    // What a screen reader calls the picker.
    property string title
    signal picked(date date)
    signal doneClicked(date date)
    signal todayClicked()

    readonly property int firstYear: 1900
    // Without the year, a day of the calendar in no particular year: February has 29 days.
    property bool yearShown: true
    function shownYear(): int {
        return yearShown ? firstYear + yearWheel.currentIndex : 2000
    }
    property bool syncing: false

    function chosenDate(): date {
        return new Date(shownYear(), monthWheel.currentIndex,
                        Math.min(dayWheel.currentIndex + 1, daysIn(monthWheel.currentIndex, shownYear())))
    }
    function daysIn(month: int, year: int): int {
        return new Date(year, month + 1, 0).getDate()
    }
    function show(shown: date) {
        syncing = true
        yearWheel.showAt(shown.getFullYear() - firstYear)
        monthWheel.showAt(shown.getMonth())
        dayWheel.labels = dayLabels(daysIn(shown.getMonth(), shownYear()))
        dayWheel.showAt(shown.getDate() - 1)
        syncing = false
        open()
        monthWheel.forceActiveFocus()
    }
    function dayLabels(days: int): list<string> {
        return Array.from({ length: days }, (_, i) => String(i + 1))
    }
    function wheelMoved() {
        if (syncing || !visible)
            return
        const days = daysIn(monthWheel.currentIndex, shownYear())
        if (dayWheel.count !== days) {
            const day = dayWheel.currentIndex
            syncing = true
            dayWheel.labels = dayLabels(days)
            dayWheel.showAt(Math.min(day, days - 1))
            syncing = false
        }
        picked(chosenDate())
    }

    modal: true
    dim: false
    Component.onCompleted: ModalPopups.watch(picker)
    padding: 0
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside
    background: Rectangle {
        color: "white"
        Rectangle { width: parent.width; height: 1; color: Theme.border }
    }

    // A wheel as a screen reader finds it: a spin box that says what it shows. The face is the
    // scope around the Tumbler, which, a Control, would not take the spin box role (Qt 6.4).
    component Wheel: FocusScope {
        id: wheel
        property string title
        property list<string> labels
        property alias currentIndex: tumbler.currentIndex
        readonly property alias count: tumbler.count
        activeFocusOnTab: true
        Layout.fillWidth: true
        Layout.preferredHeight: 176
        Accessible.role: Accessible.SpinBox
        Accessible.name: title + ", " + (labels[currentIndex] ?? "")
        Accessible.focusable: true
        Accessible.ignored: !visible
        Accessible.onIncreaseAction: if (visible) step(1)
        Accessible.onDecreaseAction: if (visible) step(-1)
        Keys.onUpPressed: step(-1)
        Keys.onDownPressed: step(1)
        Keys.onReturnPressed: picker.doneClicked(picker.chosenDate())
        Keys.onEnterPressed: picker.doneClicked(picker.chosenDate())
        function step(delta: int) {
            currentIndex = (currentIndex + delta + count) % count
        }
        // Straight to a day, not spinning through the days between (new labels start at the first).
        function showAt(index: int) {
            currentIndex = index
            tumbler.positionViewAtIndex(index, Tumbler.Center)
        }
        Tumbler {
            id: tumbler
            anchors.fill: parent
            model: wheel.labels
            visibleItemCount: 5
            focusPolicy: Qt.NoFocus
            Accessible.ignored: true
            onCurrentIndexChanged: picker.wheelMoved()
            // Spelled out: an inline component does not wrap a delegate object by itself on Qt 6.4.
            delegate: Component {
                Label {
                    required property string modelData
                    required property int index // read by the Tumbler's attached displacement
                    text: modelData
                    font.pixelSize: 18
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    opacity: 1.0 - Math.abs(Tumbler.displacement) / (tumbler.visibleItemCount / 2)
                }
            }
        }
        Rectangle {
            anchors.fill: parent
            color: "transparent"
            radius: 6
            border.width: Theme.focusRingWidth
            border.color: Theme.tint
            visible: wheel.activeFocus
        }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0
        ToolBar {
            Layout.fillWidth: true
            background: Rectangle { color: Theme.cellColor }
            RowLayout {
                anchors.fill: parent
                BarButton {
                    objectName: "DoneButton"
                    text: "Done"
                    onClicked: picker.doneClicked(picker.chosenDate())
                }
                Item { Layout.fillWidth: true }
                BarButton {
                    objectName: "TodayButton"
                    text: "Today"
                    onClicked: picker.todayClicked()
                }
            }
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 8
            Wheel {
                id: monthWheel
                objectName: "monthWheel"
                title: qsTr("Month")
                labels: Array.from({ length: 12 }, (_, i) => Qt.locale().monthName(i, Locale.LongFormat))
                Layout.preferredWidth: 3
            }
            Wheel {
                id: dayWheel
                objectName: "dayWheel"
                title: qsTr("Day")
                labels: picker.dayLabels(31)
                Layout.preferredWidth: 1
            }
            Wheel {
                id: yearWheel
                objectName: "yearWheel"
                visible: picker.yearShown
                title: qsTr("Year")
                labels: Array.from({ length: 201 }, (_, i) => String(picker.firstYear + i))
                Layout.preferredWidth: 2
            }
        }
    }
}
