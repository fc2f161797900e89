#pragma once

#include "costing/Money.h"
#include "costing/clsZR3ScheduleOfTimeItem.h"
#include "shell/clsRunTimeError.h"

#include <QString>

#include <array>
#include <optional>

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

/// A figure, or the error that it ends in.
template <class Value> struct clsFigure {
    Value value {};
    std::optional<clsRunTimeError> error {};

    /// The value; raises the error.
    const Value &get() const
    {
        if (error)
            throw *error;
        return value;
    }
};

/// The three figures above for all columns at once. One that fails leaves the others alone.
struct clsColumnTotals {
    std::array<clsFigure<QString>, clsZR3ScheduleOfTimeItem::Columns> times;
    std::array<clsFigure<Money>, clsZR3ScheduleOfTimeItem::Columns> claims;
    clsFigure<Money> schedule;
};
/// They are worked out in one walk, for whoever has the prices of the items at hand.
clsColumnTotals AllColumnTotals(const clsZR3Form &form, clsSchedulePrices &prices);

/// The claims of all advocacy items, also of a bill that leaves the others out. On `Claim1A` with items of the Family
/// Advocacy Scheme it is their total instead, and the schedule's advocacy plays no part.
Money AdvocacyTotal(const clsZR3Form &form);
