#pragma once

#include "costing/checking/clsWhy.h"
#include "costing/clsBill.h"
#include "costing/mdGetCommsInfo.h"

#include <optional>

// How the figures of the bill are calculated. The value of each step is the program's own figure. The claim is
// unchanged afterwards. Nothing is returned for a figure that doesn't exist.

/// An item of the schedule, by its order.
std::optional<clsWhy> mdWhyScheduleItem(const clsBill &bill, int orderID);
/// A line of the letters and calls.
std::optional<clsWhy> mdWhyCommunications(const clsBill &bill, clsCommsKind kind, int line);
/// A hearing of the advocacy scheme, by its order.
std::optional<clsWhy> mdWhyFASItem(const clsBill &bill, int orderID);
/// A total, or a figure of the bill's summary, by its key.
std::optional<clsWhy> mdWhyTotal(const clsBill &bill, const QString &key);
/// The name of that total or figure; empty for a key that the claim's form doesn't have.
QString mdTotalInWords(const clsZR3Form &form, const QString &key);
/// A column of a list of claims that holds a figure of the bill.
std::optional<clsWhy> mdWhyListColumn(const clsBill &bill, const QString &column);

/// A figure of the strip of totals, by its key in `mdClaimTotals`.
std::optional<clsWhy> mdWhyClaimTotal(const clsBill &bill, const QString &key);

/// Any of these: "schedule" and an order, "communications" and kind and line as in "2/1", "fas" and an order, "total"
/// and a key, "list" and a column.
std::optional<clsWhy> mdWhy(const clsBill &bill, const QString &kind, const QString &which);
