#pragma once

#include "costing/clsBill.h"

#include <vector>

// The figures of the schedule of time. Columns have the numbers of an item's `TimeColumn`, 0 to 4. Nothing is stored:
// each total is computed on request, over the items on the bill.

/// The time of a column as hours, a colon and minutes.
QString ColumnTimeTotal(const clsBill &bill, int column);
/// The claims of a column.
Money ColumnClaimTotal(const clsBill &bill, int column);
/// The claims of all columns.
Money ScheduleTotal(const clsBill &bill);

/// The claims of some of the items, added up as `ScheduleTotal` does for all of them; items not on the bill are
/// skipped.
Money ScheduleTotalOf(const clsZR3Form &form, const std::vector<const clsZR3ScheduleOfTimeItem *> &items);

/// The figures above, computed in one pass.
clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices);

/// The claims of all advocacy items, also for a bill that leaves the others out. On `Claim1A` with items of the Family
/// Advocacy Scheme it is their total instead, and the schedule's advocacy is ignored.
Money AdvocacyTotal(const clsBill &bill);
/// The claims of the schedule's advocacy items, for any form type; not yet rounded.
clsFigure<Money> ScheduleAdvocacy(const clsZR3Form &form, clsSchedulePrices &prices);
