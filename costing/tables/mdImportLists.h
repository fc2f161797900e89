#pragma once

#include "costing/tables/mdTableColumns.h"

struct clsImportedRow;

/// A list that the rows of a table can be added to.
struct clsImportList {
    std::span<const clsTableColumn> columns;
    std::span<const char *const>
        figures; ///< columns that the tables of this program have beside, and that say nothing new
    const char *items; ///< the list in which doubles are looked for; empty where there are none
    void (*store)(clsZR3Form &form, const clsImportedRow &row);
    void (*changed)(clsZR3Form &form) = nullptr; ///< derives anew what hangs on the list
    QString (*reasonOfRow)(const clsImportedRow &row) = nullptr; ///< why cells that are right make no row
};

const clsImportList &mdScheduleImport();
const clsImportList &mdDisbursementsImport();
const clsImportList &mdExpertsImport();
/// Letters and calls are counted: each row adds to the counts of its fee earner.
const clsImportList &mdCommunicationsImport();
