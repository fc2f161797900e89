#pragma once

#include "base/Money.h"

#include <QString>

/// An amount as it is printed: two decimals, rounded half away from zero on the decimal text itself, the thousands
/// parted by commas, a minus sign in front of a negative one. A text of nothing but blanks is an amount of nothing.
/// What is no number (digits with commas, one point, a sign in front, blanks around it) is a type mismatch.
QString mdFormatMoney(const QString &text);
/// The same of an amount as such.
QString mdFormatMoney(Money amount);
