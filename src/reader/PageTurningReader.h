#pragma once

#include "ReaderScreen.h"

#include <QObject>
#include <QQmlEngine>

// A reader that turns to the neighbouring pages of the list it was opened from, in that list's
// order. A page turned to is selected as the list selects a chosen row and shown as the screen's
// load shows it, under the wallpaper already drawn.
class PageTurningReader : public ReaderScreen
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A reader screen's controller")
    Q_PROPERTY(bool hasPreviousPage READ hasPreviousPage NOTIFY turnableChanged)
    Q_PROPERTY(bool hasNextPage READ hasNextPage NOTIFY turnableChanged)

public:
    explicit PageTurningReader(QObject *parent = nullptr);

    bool hasPreviousPage() const { return canTurn(-1); }
    bool hasNextPage() const { return canTurn(1); }

    // To the page before (direction -1) or after (1); false, changing nothing, at an end or while
    // the reader holds its page.
    Q_INVOKABLE bool turnPage(int direction);

Q_SIGNALS:
    void turnableChanged();
    // The page shown is now the neighbour in this direction.
    void pageTurned(int direction);

protected:
    // Shows the selected page: all of the screen's load that follows the wallpaper draw.
    virtual void showSelection() = 0;
    // Whether the open page must stay (unsaved edits, say).
    virtual bool holdsPage() const { return false; }

private:
    bool canTurn(int direction) const;
};
