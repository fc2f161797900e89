#include "base/mdClock.h"

namespace {

// A test sets the time for all that asks for it.
std::function<QDateTime()> clockInForce;

} // namespace

QDateTime Now()
{
    return clockInForce ? clockInForce() : QDateTime::currentDateTime();
}

void SetClock(std::function<QDateTime()> clock)
{
    clockInForce = std::move(clock);
}
