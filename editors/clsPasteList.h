#pragma once

#include "costing/tables/mdImportLists.h"

#include <QStringList>

/// A list that can import rows of a table and be copied as one.
struct clsPasteList {
    const char *section; ///< the name the user knows
    const clsImportList &(*import)();
    const char *table; ///< its table in the claim
    /// The columns that are copied, if not all of them.
    QStringList (*copied)() = nullptr;
    const char *total = nullptr; ///< the column that is summed in the preview of the rows
    bool hasCopyKey = true;
};

const clsPasteList &mdPasteSchedule();
const clsPasteList &mdPasteDisbursements();
const clsPasteList &mdPasteExperts();
/// Without the copy key: letters and calls are counted by keys, and Ctrl+Shift+C would be one of them.
const clsPasteList &mdPasteCommunications();

/// The name of a column as shown to the user.
QString mdColumnCaption(const clsTableColumn &column);
