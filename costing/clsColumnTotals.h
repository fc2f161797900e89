#pragma once

#include "base/Money.h"
#include "base/clsRunTimeError.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"

#include <QString>

#include <array>
#include <optional>

/// A figure, or the error in computing it.
template <class Value> struct clsFigure {
    Value value {};
    std::optional<clsRunTimeError> error {};

    /// Returns the value or raises the error.
    const Value &get() const
    {
        if (error)
            throw *error;
        return value;
    }
};

/// The figures of the schedule of time, for all columns at once. An error in one doesn't affect the others.
struct clsColumnTotals {
    std::array<clsFigure<QString>, clsZR3ScheduleOfTimeItem::Columns> times;
    std::array<clsFigure<Money>, clsZR3ScheduleOfTimeItem::Columns> claims;
    clsFigure<Money> schedule;
};
