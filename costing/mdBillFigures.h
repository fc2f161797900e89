#pragma once

#include "costing/mdBillSummary.h"

#include <QLatin1String>

#include <span>

// The single figures of the bill, by the keys under which they are printed.

/// The totals of every claim, from `ScheduleTotal` to `LoadFromBillVAT`.
std::span<const clsBillFigure> mdTotalFigures();
/// The money columns of a list of claims, to the penny: `profitcosts`, `disbursements`, `fas` (not on Claim 1), `vat`,
/// `total`, `counsel`, `all`.
std::span<const clsBillFigure> mdListFigures(const clsZR3Form &form);

/// The total, or the figure of the claim's own summary, of that key; nothing where there is none.
const clsBillFigure *mdFigureOf(const clsZR3Form &form, QLatin1String key);
/// The money column of that name; nothing where there is none.
const clsBillFigure *mdListFigureOf(const clsZR3Form &form, QLatin1String column);
