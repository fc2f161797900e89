#pragma once

#include "costing/clsBill.h"
#include "costing/tables/clsTable.h"

#include <optional>

/// A list of the claim as a table.
struct clsClaimTable : clsTable {
    /// True if a figure can't be computed: it is then "!" and the error's number.
    bool hasFailures = false;
    /// The causes in words; only the first if there are many.
    QStringList causes {};
};

/// The list with that name: schedule, disbursements, experts, joint, fas, communications, counsel, feeearners, groups,
/// enhancements or totals, in order. References are shown as the name of the other item. The claim is unchanged
/// afterwards. Nothing for another name.
std::optional<clsClaimTable> mdClaimTable(const clsBill &bill, QStringView name);
