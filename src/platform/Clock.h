#pragma once

#include <QDate>
#include <QDateTime>
#include <functional>

// "Now" for every screen: the system clock unless a test sets another, so today's pages, note
// dates and the review prompt can be checked on any date.
namespace Clock {
QDateTime now();
// The calendar date of now, in the device's time zone.
QDate today();
// Replaces the clock (tests); an empty function goes back to the system clock.
void set(std::function<QDateTime()> now);
}
