import QtQuick
import QtQuick.Controls
import Larkwells

// A reader's page: the styled, scrolling text over the reader's wallpaper, which runs behind
// the whole text however long. Pinch zooms about the middle of the view, and a page zoomed in
// pans every way; Ctrl with the wheel, plus or minus asks for the next text size as the stepper
// would. Tab leaves the text instead of typing a tab.
Flickable {
    id: surface
    required property ReaderAppearance appearance
    property alias text: textView.text
    property alias textFormat: textView.textFormat
    property alias readOnly: textView.readOnly
    property alias textView: textView
    property string accessibleName
    // Some readers frame the wallpaper apart from the text on a phone: it stops 25 points short
    // of the text's bottom and reaches `pictureOverhang` past its right edge.
    property bool phoneFrame: false
    property real pictureOverhang: 0
    // The reader asks for one step up (1) or down (-1) of the text size.
    signal sizeStepRequested(int direction)
    signal pinched(real scale)

    function endEditing() { textView.focus = false }

    contentWidth: Math.max(width, width * appearance.zoom)
    contentHeight: Math.max(height, textView.implicitHeight * appearance.zoom)
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    ScrollBar.vertical: ScrollBar {}
    ScrollBar.horizontal: ScrollBar {}

    // What was in the middle of the view stays there as the zoom changes.
    property real shownZoom: 1
    Connections {
        target: surface.appearance
        function onZoomChanged() {
            const zoom = surface.appearance.zoom
            const change = zoom / surface.shownZoom
            surface.shownZoom = zoom
            // The content's new size, whether or not its bindings have caught up yet.
            const wide = Math.max(surface.width, surface.width * zoom)
            const high = Math.max(surface.height, textView.implicitHeight * zoom)
            const middleX = (surface.contentX + surface.width / 2) * change
            const middleY = (surface.contentY + surface.height / 2) * change
            surface.contentX = Math.max(0, Math.min(middleX - surface.width / 2, wide - surface.width))
            surface.contentY = Math.max(0, Math.min(middleY - surface.height / 2, high - surface.height))
        }
    }

    // The night look's dark surface, under the wallpaper; the wallpaper is dimmed by the same colour.
    Rectangle {
        objectName: "nightSurface"
        width: surface.contentWidth
        height: surface.contentHeight
        color: surface.appearance.nightSurfaceColor
        visible: surface.appearance.night
    }

    Image {
        objectName: "img"
        width: surface.contentWidth + (surface.phoneFrame ? surface.pictureOverhang : 0)
        height: surface.contentHeight - (surface.phoneFrame ? 25 : 0)
        // Not before the page has its width, and never asked for at no size, which would decode
        // the whole picture.
        source: surface.width > 0 ? surface.appearance.wallpaper : ""
        fillMode: Image.PreserveAspectCrop
        sourceSize.width: Math.min(1600, Math.max(1, width) * Screen.devicePixelRatio)
        asynchronous: true
        visible: status === Image.Ready

        Rectangle {
            objectName: "nightDim"
            anchors.fill: parent
            color: surface.appearance.nightSurfaceColor
            opacity: surface.appearance.wallpaperDim
            visible: surface.appearance.night
        }
    }

    TextArea {
        id: textView
        objectName: "PoemPrayerTextView"
        width: surface.width
        // Zoomed in, the text grows to the right and down into the content it pans over; zoomed
        // out, it stays centred.
        transform: Scale {
            origin.x: surface.appearance.zoom < 1 ? textView.width / 2 : 0
            xScale: surface.appearance.zoom
            yScale: surface.appearance.zoom
        }
        z: 1
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        horizontalAlignment: surface.appearance.styled ? TextEdit.AlignHCenter : TextEdit.AlignLeft
        color: surface.appearance.night ? surface.appearance.nightTextColor : surface.appearance.shownTextColor
        font.family: surface.appearance.styled ? surface.appearance.FontName : Theme.plainFontFamily
        font.pixelSize: surface.appearance.fontSize
        topPadding: 8
        bottomPadding: 48
        leftPadding: 20
        rightPadding: 20
        selectByMouse: true
        persistentSelection: false
        activeFocusOnTab: true
        background: Rectangle {
            color: "transparent"
            border.width: textView.activeFocus && (textView.focusReason === Qt.TabFocusReason
                                                   || textView.focusReason === Qt.BacktabFocusReason)
                          ? Theme.focusRingWidth : 0
            border.color: Theme.tint
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: surface.accessibleName
        Accessible.description: textFormat === TextEdit.PlainText ? text : getText(0, length)

        Keys.onTabPressed: event => {
            const next = textView.nextItemInFocusChain(true)
            if (next)
                next.forceActiveFocus(Qt.TabFocusReason)
        }
        Keys.onBacktabPressed: event => {
            const previous = textView.nextItemInFocusChain(false)
            if (previous)
                previous.forceActiveFocus(Qt.BacktabFocusReason)
        }
    }

    Shortcut {
        sequences: ["Ctrl++", "Ctrl+="]
        enabled: surface.visible
        onActivated: surface.sizeStepRequested(1)
    }
    Shortcut {
        sequences: ["Ctrl+-"]
        enabled: surface.visible
        onActivated: surface.sizeStepRequested(-1)
    }

    WheelHandler {
        acceptedModifiers: Qt.ControlModifier
        target: null
        onWheel: event => surface.sizeStepRequested(event.angleDelta.y > 0 ? 1 : -1)
    }
    TapHandler {
        onTapped: surface.endEditing()
    }
    // Over the text, which would otherwise take the first finger for itself before a pinch
    // below it could see the second.
    Item {
        parent: surface
        anchors.fill: parent
        z: 2
        PinchHandler {
            target: null
            property real lastScale: 1
            onActiveChanged: lastScale = 1
            onActiveScaleChanged: {
                surface.pinched(activeScale / lastScale)
                lastScale = activeScale
            }
        }
    }
}
