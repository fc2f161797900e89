#pragma once

#include "costing/mdBillSummary.h"

#include <QLatin1String>

#include <span>

/// The totals of every claim, from `ScheduleTotal` to `LoadFromBillVAT`.
std::span<const clsBillFigure> mdTotalFigures();
/// The bill summary as printed on the claim's form.
std::span<const clsBillFigure> mdSummaryFigures(const clsZR3Form &form);
/// The money columns of a list of claims, to the penny: `profitcosts`, `disbursements`, `fas` (not on Claim 1), `vat`,
/// `total`, `counsel`, `all`.
std::span<const clsBillFigure> mdListFigures(const clsZR3Form &form);

/// The additional figures of the strip of totals: `other` (letters and calls, experts and other disbursements, net),
/// `fixedfee`, and `limit`, the amount compared with the costs limit.
std::span<const clsBillFigure> mdStripFigures();

/// The row with that key, or null.
const clsBillFigure *mdFigureOf(std::span<const clsBillFigure> figures, QLatin1String key);
