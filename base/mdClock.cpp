#include "base/mdClock.h"

namespace {

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
