#pragma once

#include "base/Money.h"

/// A percentage of an amount, at four decimals (half to even) and not rounded to the penny: callers that need pence
/// round after adding. `percentage` is written as 50 or 17.50, never as a fraction; text without a number is 0. Error 6
/// if the result is out of range.
Money PercentageCalculate(Money amount, QStringView percentage);
