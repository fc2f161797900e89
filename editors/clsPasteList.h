#pragma once

#include "costing/tables/mdImportLists.h"

#include <QStringList>

/// A list that takes rows of a table and gives its own as one.
struct clsPasteList {
    const char *section; ///< what the user calls it
    const clsImportList &(*import)();
    const char *table; ///< its table in the claim
    /// The columns of that table that are copied, where it isn't all of them.
    QStringList (*copied)() = nullptr;
    const char *total = nullptr; ///< the column that is summed while the rows are looked at
    bool hasCopyKey = true;
};

const clsPasteList &mdPasteSchedule();
const clsPasteList &mdPasteDisbursements();
const clsPasteList &mdPasteExperts();
/// Letters and calls are counted. Ctrl+Shift+C would be one of the keys that count there.
const clsPasteList &mdPasteCommunications();

/// A column's name for the user.
QString mdColumnCaption(const clsTableColumn &column);
