import QtQuick
import QtQuick.Controls

// A screen of the book: its bar on top, its content, and perhaps a bar below, as a page lays
// them out. A page is heard by a screen reader as a tab of some tab list, and no setting of
// its role survives accessibility waking up; a screen is a panel named by its title.
Pane {
    id: screen
    property string title
    property Item header
    property Item footer
    property bool completed: false

    padding: 0
    topPadding: screen.header && screen.header.visible ? screen.header.height : 0
    bottomPadding: screen.footer && screen.footer.visible ? screen.footer.height : 0
    Accessible.name: screen.title

    // In reading order, which is also the keyboard's and the screen reader's: the top bar, the
    // content, then the bottom bar, taken in only once the content is in.
    onHeaderChanged: screen.place(screen.header, false)
    onFooterChanged: if (screen.completed) screen.place(screen.footer, true)
    Component.onCompleted: {
        screen.completed = true
        screen.place(screen.footer, true)
    }

    // Over the content's edge, across the whole screen.
    function place(bar: Item, atBottom: bool) {
        if (!bar)
            return
        bar.parent = screen
        bar.z = 1
        bar.width = Qt.binding(() => screen.width)
        bar.y = Qt.binding(() => atBottom ? screen.height - bar.height : 0)
    }
}
