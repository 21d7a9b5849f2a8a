#pragma once

#include <QString>

class PoemPrayer;

// Today's morning or night page, found by today's calendar date: what a reminder shows and
// the page it opens.
namespace TodaysPage {

// Today's page for `ampm` ("AM" or "PM"); null when the book has none.
PoemPrayer *fetch(const QString &ampm);

// The first line of the page's own text: blank lines and a heading a save left in front of it
// ("From The Larkwells", the greeting, the date) are passed over.
QString firstLine(const PoemPrayer &page);

// Chooses today's page as a list would and opens the reader on it; false when there is none.
bool open(const QString &ampm);

}
