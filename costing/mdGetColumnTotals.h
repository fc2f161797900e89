#pragma once

#include "costing/clsBill.h"

#include <vector>

// The figures of the schedule of time. Columns are numbered as an item's `TimeColumn` gives them, 0 to 4. Nothing is
// stored: each total is computed from the items when it is asked for, over the items that stand on the bill.

/// The time of a column as hours, a colon and minutes.
QString ColumnTimeTotal(const clsBill &bill, int column);
/// The claims of a column.
Money ColumnClaimTotal(const clsBill &bill, int column);
/// The claims of all columns.
Money ScheduleTotal(const clsBill &bill);

/// The claims of some of the items, added up as `ScheduleTotal` adds up all of them; those that are not on the bill
/// count for nothing.
Money ScheduleTotalOf(const clsZR3Form &form, const std::vector<const clsZR3ScheduleOfTimeItem *> &items);

/// The figures above, worked out in one walk.
clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices);

/// The claims of all advocacy items, also for a bill that leaves the others out. On `Claim1A` with items of the Family
/// Advocacy Scheme it is their total instead, and the schedule's advocacy is ignored.
Money AdvocacyTotal(const clsBill &bill);
/// The claims of the schedule's advocacy items, for any form type; not yet rounded.
clsFigure<Money> ScheduleAdvocacy(const clsZR3Form &form, clsSchedulePrices &prices);
