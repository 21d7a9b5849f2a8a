import QtQuick
import Larkwells

// A search result row: the page row, taller, whose box only shows the mark; a tap anywhere on
// it opens the page.
GMNTableViewCell {
    rowHeight: 75
    favoriteInteractive: false
}
