#include "Clock.h"

namespace {
std::function<QDateTime()> &source()
{
    static std::function<QDateTime()> now;
    return now;
}
}

QDateTime Clock::now()
{
    return source() ? source()() : QDateTime::currentDateTime();
}

QDate Clock::today()
{
    return now().toLocalTime().date();
}

void Clock::set(std::function<QDateTime()> now)
{
    source() = std::move(now);
}
