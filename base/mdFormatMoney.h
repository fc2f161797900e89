#pragma once

#include "base/Money.h"

#include <QString>

/// An amount for printing: two decimals, rounded half away from zero on the decimal text, thousands separated by
/// commas, a leading minus sign if negative. Blank text is zero. Text that is not a number (digits with commas, one
/// point, a leading sign, blanks around) is a type mismatch.
QString mdFormatMoney(const QString &text);
/// The same for a Money amount.
QString mdFormatMoney(Money amount);
