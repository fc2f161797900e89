#pragma once

#include "costing/tables/mdClaimItems.h"

#include <QStringList>

/// What stands in the cells of a column, and so how they are read.
enum class clsCellKind { Passed, FeeEarner, Date, Code, Text, Time, Tick, Enhancement };

/// A column of a table of items: the name under which it is printed, and the property of the item.
struct clsTableColumn {
    const char *name;
    const char *property;
    clsCellKind kind;
    bool isRequired = false; ///< no item can be read from a table without it
};

/// The columns of the schedule, in the order in which they are printed.
std::span<const clsTableColumn> mdScheduleColumns();
/// The figures that stand behind them, which are computed.
std::span<const char *const> mdScheduleFigures();

/// What the item is called that a property refers to by its identity: a fee earner's or group's reference, an
/// enhancement's or counsel's name. Where there is no such item, the identity as it stands.
QString mdNameOfReferred(const clsZR3Form &form, const QString &property, const QString &identity);
