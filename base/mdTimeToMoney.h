#pragma once

#include "base/Money.h"

/// The price of a duration at a rate in pounds per hour, to the penny. Errors of `TimeToMinutes` and `RoundMoney2`.
Money TimeToMoney(QStringView timeText, Money ratePerHour);

/// The same for a duration in minutes.
Money MinutesToMoney(int minutes, Money ratePerHour);
