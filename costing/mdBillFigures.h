#pragma once

#include "costing/mdBillSummary.h"

#include <QLatin1String>

#include <span>

/// The totals of every claim, from `ScheduleTotal` to `LoadFromBillVAT`.
std::span<const clsBillFigure> mdTotalFigures();
/// The bill summary as the claim's form prints it.
std::span<const clsBillFigure> mdSummaryFigures(const clsZR3Form &form);
/// The money columns of a list of claims, to the penny: `profitcosts`, `disbursements`, `fas` (not on Claim 1), `vat`,
/// `total`, `counsel`, `all`.
std::span<const clsBillFigure> mdListFigures(const clsZR3Form &form);

/// What the strip of totals shows beside these: `other` (letters and calls, experts and other disbursements, net),
/// `fixedfee`, and `limit`, which a limit of costs is held against.
std::span<const clsBillFigure> mdStripFigures();

/// The row with that key, or nothing.
const clsBillFigure *mdFigureOf(std::span<const clsBillFigure> figures, QLatin1String key);
