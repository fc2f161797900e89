#pragma once

#include "costing/tables/mdClaimItems.h"

#include <QStringList>

/// The type of a column's cells, which decides how they are read.
enum class clsCellKind {
    Passed,
    FeeEarner,
    Enhancement,
    Counsel,
    Date, ///< empty is stored as the no-date text
    DateIfAny, ///< empty stays empty
    Code,
    Text,
    Time,
    Tick,
    Amount,
    AmountIfAny, ///< empty is 0.00
    Count,
    CommsKind, ///< a call, a letter in or a letter out
};

/// A column of a table of items: its printed name, and the property of the item.
struct clsTableColumn {
    const char *name;
    const char *property;
    clsCellKind kind;
    bool isRequired = false; ///< without it no item can be read from a table
    const char *countsBy = nullptr; ///< the tick that must be set for the named item to count
};

/// The columns of the schedule, in printed order.
std::span<const clsTableColumn> mdScheduleColumns();
/// The computed figures after them.
std::span<const char *const> mdScheduleFigures();

/// The columns of the disbursements.
std::span<const clsTableColumn> mdDisbursementColumns();
/// The columns of the experts' invoices.
std::span<const clsTableColumn> mdExpertColumns();
/// The columns of letters and calls: a row counts one or a number of one kind, or has a count for each kind.
std::span<const clsTableColumn> mdCommunicationsColumns();

/// The index of a column, by its name or its property, ignoring case, blanks and underscores. -1 for another name.
int mdColumnOf(std::span<const clsTableColumn> columns, const QString &name);
/// Whether two names are the same apart from these.
bool mdIsSameName(const QString &one, const QString &other);

/// The name of the item that a property refers to by identity: a fee earner's or group's reference, an enhancement's or
/// counsel's name. If there is no such item, the identity.
QString mdNameOfReferred(const clsZR3Form &form, const QString &property, const QString &identity);
