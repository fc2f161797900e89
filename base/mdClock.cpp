#include "base/mdClock.h"

namespace {

// Tests set the time for all callers.
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
