#pragma once

#include "base/Money.h"
#include "base/clsRunTimeError.h"
#include "formdata/clsZR3ScheduleOfTimeItem.h"

#include <QString>

#include <array>
#include <optional>

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

/// The figures of the schedule of time, for all columns at once. One that fails leaves the others alone.
struct clsColumnTotals {
    std::array<clsFigure<QString>, clsZR3ScheduleOfTimeItem::Columns> times;
    std::array<clsFigure<Money>, clsZR3ScheduleOfTimeItem::Columns> claims;
    clsFigure<Money> schedule;
};
