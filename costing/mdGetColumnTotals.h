#pragma once

#include "costing/clsBill.h"

// The figures of the schedule of time. Columns have the numbers of an item's `TimeColumn`, 0 to 4. Nothing is stored:
// each total is computed on demand from the items on the bill.

/// The time of a column as hours, a colon and minutes.
QString ColumnTimeTotal(const clsBill &bill, int column);
/// The claims of a column.
Money ColumnClaimTotal(const clsBill &bill, int column);
/// The claims of all columns.
Money ScheduleTotal(const clsBill &bill);

/// The figures above, computed in one pass.
clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices);

/// The claims of all advocacy items, also for a bill that leaves the others out. On `Claim1A` with items of the Family
/// Advocacy Scheme it is their total instead, and the schedule's advocacy is ignored.
Money AdvocacyTotal(const clsBill &bill);
/// The claims of the schedule's advocacy items, for any form type; not yet rounded.
clsFigure<Money> ScheduleAdvocacy(const clsZR3Form &form, clsSchedulePrices &prices);
