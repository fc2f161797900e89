#pragma once

#include <QDateTime>

#include <functional>

/// The present date and time of this place.
QDateTime Now();

/// Puts another clock in force, for tests; an empty one puts the system's back.
void SetClock(std::function<QDateTime()> clock);
