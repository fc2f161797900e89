#pragma once

#include "costing/tables/mdClaimItems.h"

#include <QStringList>

/// What stands in the cells of a column, and so how they are read.
enum class clsCellKind {
    Passed,
    FeeEarner,
    Enhancement,
    Counsel,
    Date, ///< of which the item says that there is none
    DateIfAny, ///< which may be left empty
    Code,
    Text,
    Time,
    Tick,
    Amount,
    AmountIfAny, ///< nothing is 0.00
    Count,
    CommsKind, ///< a call, a letter in or a letter out
};

/// A column of a table of items: the name under which it is printed, and the property of the item.
struct clsTableColumn {
    const char *name;
    const char *property;
    clsCellKind kind;
    bool isRequired = false; ///< no item can be read from a table without it
    const char *countsBy = nullptr; ///< the tick without which the item that is named doesn't count
};

/// The columns of the schedule, in the order in which they are printed.
std::span<const clsTableColumn> mdScheduleColumns();
/// The figures that stand behind them, which are computed.
std::span<const char *const> mdScheduleFigures();

/// The columns of the disbursements.
std::span<const clsTableColumn> mdDisbursementColumns();
/// Those of the experts' invoices.
std::span<const clsTableColumn> mdExpertColumns();
/// Those of letters and calls: a row counts one of a kind, or so many, or tells how many there are of each kind.
std::span<const clsTableColumn> mdCommunicationsColumns();

/// The place of a column, by its name or its property, in which case, blanks and underscores don't matter. -1 for
/// another name.
int mdColumnOf(std::span<const clsTableColumn> columns, const QString &name);
/// Whether two names are the same but for that.
bool mdIsSameName(const QString &one, const QString &other);

/// What the item is called that a property refers to by its identity: a fee earner's or group's reference, an
/// enhancement's or counsel's name. Where there is no such item, the identity as it stands.
QString mdNameOfReferred(const clsZR3Form &form, const QString &property, const QString &identity);
