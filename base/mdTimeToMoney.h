#pragma once

#include "base/Money.h"

/// The price of a duration at a rate in pounds per hour, to the penny. Errors of `TimeToMinutes` and `RoundMoney2`.
Money TimeToMoney(QStringView timeText, Money ratePerHour);

/// The same of a duration that is known in minutes.
Money MinutesToMoney(int minutes, Money ratePerHour);
