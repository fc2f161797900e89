#pragma once

#include <QDateTime>

#include <functional>

/// The current local date and time.
QDateTime Now();

/// Replaces the clock, for tests; an empty function restores the system's.
void SetClock(std::function<QDateTime()> clock);
