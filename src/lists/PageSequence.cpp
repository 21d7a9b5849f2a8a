#include "PageSequence.h"

#include <QPointer>

namespace {
QPointer<PageSequence> &lastChosen()
{
    static QPointer<PageSequence> sequence;
    return sequence;
}
}

PageSequence::PageSequence(Chooser chooser, QObject *parent)
    : QObject(parent)
    , m_chooser(std::move(chooser))
{
}

PageSequence *PageSequence::current()
{
    return lastChosen();
}

bool PageSequence::choose(const QList<PoemPrayer *> &pages, int row)
{
    if (row < 0 || row >= pages.size())
        return false;
    m_pages = pages;
    lastChosen() = this;
    open(row);
    return true;
}

bool PageSequence::canTurn(int direction) const
{
    const qsizetype row = m_open + direction;
    return m_open >= 0 && row >= 0 && row < m_pages.size();
}

bool PageSequence::turn(int direction)
{
    if (!canTurn(direction))
        return false;
    open(m_open + direction);
    return true;
}

int PageSequence::rowIn(const QList<PoemPrayer *> &pages) const
{
    return m_open < 0 ? -1 : int(pages.indexOf(m_pages.at(m_open)));
}

void PageSequence::open(int row)
{
    m_open = row;
    m_chooser(*m_pages.at(row));
}
