#include "PageTurningReader.h"

#include "PageSequence.h"

PageTurningReader::PageTurningReader(QObject *parent)
    : ReaderScreen(parent)
{
    connect(this, &ReaderScreen::loaded, this, &PageTurningReader::turnableChanged);
}

bool PageTurningReader::canTurn(int direction) const
{
    const PageSequence *sequence = PageSequence::current();
    return sequence && !holdsPage() && sequence->canTurn(direction);
}

bool PageTurningReader::turnPage(int direction)
{
    if (!canTurn(direction) || !PageSequence::current()->turn(direction))
        return false;
    // the voice reads the page that was shown, never the next one
    readAloud()->stop();
    showSelection();
    Q_EMIT pageTurned(direction);
    return true;
}
