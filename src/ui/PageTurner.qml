pragma ComponentBehavior: Bound
import QtQuick
import Larkwells

// Turns a reader's page: two small arrows at the foot of the text, Left and Right while the
// text does not have the keyboard, and a sideways swipe. The page turned to slides in from its
// side. Lay it over the reader's surface.
Item {
    id: turner
    required property ReaderSurface surface
    required property PageTurningReader reader
    // The page turned to is in place, at the top of its text.
    signal turned()

    function turn(direction: int) {
        surface.endEditing()
        reader.turnPage(direction)
    }

    Connections {
        target: turner.reader
        function onPageTurned(direction: int) {
            turner.surface.contentY = turner.surface.originY
            slide.direction = direction
            slide.restart()
            turner.turned()
        }
    }

    ParallelAnimation {
        id: slide
        property int direction: 1
        NumberAnimation {
            target: turner.surface.textView
            property: "x"
            from: slide.direction * turner.width / 4
            to: 0
            duration: 220
            easing.type: Easing.OutCubic
        }
        NumberAnimation {
            target: turner.surface.textView
            property: "opacity"
            from: 0.2
            to: 1
            duration: 220
        }
    }

    // While the text has the keyboard the arrow keys move its caret: for editing, and for reading
    // letter by letter with a screen reader.
    Shortcut {
        sequences: ["Left"]
        enabled: turner.visible && !turner.surface.textView.activeFocus
        onActivated: turner.turn(-1)
    }
    Shortcut {
        sequences: ["Right"]
        enabled: turner.visible && !turner.surface.textView.activeFocus
        onActivated: turner.turn(1)
    }

    DragHandler {
        objectName: "pageSwipe"
        target: null
        yAxis.enabled: false
        acceptedDevices: PointerDevice.TouchScreen
        // A page zoomed in pans sideways instead; the arrows still turn it.
        enabled: (turner.reader.hasPreviousPage || turner.reader.hasNextPage)
                 && turner.surface.contentWidth <= turner.surface.width
        onActiveChanged: {
            if (!active && Math.abs(persistentTranslation.x) > Math.max(48, turner.width / 8))
                turner.turn(persistentTranslation.x < 0 ? 1 : -1)
        }
    }

    component Arrow: BarButton {
        width: Theme.touchTarget
        height: Theme.touchTarget
        anchors.bottom: parent.bottom
        anchors.margins: 8
        font.pixelSize: 26
        opacity: enabled ? 1 : 0.35
        // Out of the keyboard's way when there is no page that side, and so out of a screen
        // reader's too (it would hear it as enabled).
        Accessible.ignored: !visible || !enabled
        background: Rectangle {
            radius: width / 2
            color: Theme.cellColor
            opacity: 0.85
            border.width: 1
            border.color: Theme.border
        }
    }

    Arrow {
        objectName: "PreviousPageButton"
        anchors.left: parent.left
        text: "\u2039"
        Accessible.name: qsTr("Previous Page")
        enabled: turner.reader.hasPreviousPage
        onClicked: turner.turn(-1)
    }
    Arrow {
        objectName: "NextPageButton"
        anchors.right: parent.right
        text: "\u203a"
        Accessible.name: qsTr("Next Page")
        enabled: turner.reader.hasNextPage
        onClicked: turner.turn(1)
    }
}
