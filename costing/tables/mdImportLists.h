#pragma once

#include "costing/tables/mdTableColumns.h"

struct clsImportedRow;

/// A list to which the rows of a table can be added.
struct clsImportList {
    std::span<const clsTableColumn> columns;
    std::span<const char *const> figures; ///< additional columns in this program's own tables, without new information
    const char *items; ///< the list to search for doubles; empty if there is none
    void (*store)(clsZR3Form &form, const clsImportedRow &row);
    void (*changed)(clsZR3Form &form) = nullptr; ///< updates the data derived from the list
    QString (*reasonOfRow)(const clsImportedRow &row) = nullptr; ///< why valid cells don't make a valid row
};

const clsImportList &mdScheduleImport();
const clsImportList &mdDisbursementsImport();
const clsImportList &mdExpertsImport();
/// Letters and calls are counted: each row adds to the counts of its fee earner.
const clsImportList &mdCommunicationsImport();
