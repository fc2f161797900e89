#pragma once

#include "costing/Money.h"
#include "costing/clsZR3ScheduleOfTimeItem.h"

#include <QString>

#include <array>

class clsSchedulePrices;
class clsZR3Form;

// The figures of the schedule of time. Columns are numbered as an item's `TimeColumn` gives them, 0 to 4. Nothing is
// stored: each total is computed from the items when it is asked for, over the items that stand on the bill.

/// The time of a column as hours, a colon and minutes.
QString ColumnTimeTotal(const clsZR3Form &form, int column);
/// The claims of a column.
Money ColumnClaimTotal(const clsZR3Form &form, int column);
/// The claims of all columns.
Money ScheduleTotal(const clsZR3Form &form);

/// The three figures above for all columns at once.
struct clsColumnTotals {
    std::array<QString, clsZR3ScheduleOfTimeItem::Columns> times;
    std::array<Money, clsZR3ScheduleOfTimeItem::Columns> claims;
    Money schedule;
};
/// They are worked out in one walk, for whoever has the prices of the items at hand.
clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices);

/// The claims of all advocacy items, also of a bill that leaves the others out. On `Claim1A` with items of the Family
/// Advocacy Scheme it is their total instead, and the schedule's advocacy plays no part.
Money AdvocacyTotal(const clsZR3Form &form);
