#pragma once

#include "costing/clsBill.h"
#include "costing/tables/clsTable.h"

#include <optional>

/// A list of the claim as a table.
struct clsClaimTable : clsTable {
    /// True when a figure can't be computed: it then stands as "!" and the error's number.
    bool hasFailures = false;
    /// What they come from, in words; of many only the first.
    QStringList causes {};
};

/// The list of that name: schedule, disbursements, experts, joint, fas, communications, counsel, feeearners, groups,
/// enhancements or totals, by their order. References are shown as what the other item is called. The claim is the same
/// afterwards. Nothing for another name.
std::optional<clsClaimTable> mdClaimTable(const clsBill &bill, QStringView name);
