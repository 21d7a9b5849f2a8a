#pragma once

#include "Entities.h"

#include <QList>
#include <QObject>
#include <functional>

// The pages of the list a reader was opened from, in the list's order, and which of them is
// open. Choosing a row and turning to a neighbour select a page the same way, through the list's
// own chooser, so a page turned to loads exactly as one chosen in the list. Each list owns one;
// the readers turn through the one last chosen from, for as long as its list lives.
class PageSequence : public QObject
{
    Q_OBJECT

public:
    // Writes the selection values for a page the way its list does when the row is chosen.
    using Chooser = std::function<void(const PoemPrayer &)>;

    explicit PageSequence(Chooser chooser, QObject *parent = nullptr);

    // The list's row was chosen: its page is selected, and these pages become the ones readers
    // turn through. False, selecting nothing, for a row the list does not have.
    bool choose(const QList<PoemPrayer *> &pages, int row);
    // The sequence of the list last chosen from; null once that list has gone.
    static PageSequence *current();

    // Whether a page stands before (direction -1) or after (1) the open one.
    bool canTurn(int direction) const;
    // Selects the page before (-1) or after (1) the open one; false, selecting nothing, at an end.
    bool turn(int direction);
    // Where the open page stands among `pages`; -1 when it is not among them.
    int rowIn(const QList<PoemPrayer *> &pages) const;

private:
    void open(int row);

    Chooser m_chooser;
    QList<PoemPrayer *> m_pages;
    int m_open = -1;
};
