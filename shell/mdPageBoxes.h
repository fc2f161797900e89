#pragma once

#include "preview/oPageView.h"

#include <vector>

struct clsForecast;

/// What stands beside and on the pages of a finished form.
struct clsPageMarks {
    /// The boxes that lead to their fields, and the rows of lists that lead to their items. A sheet on which a
    /// row has grown has none.
    std::vector<clsPageBox> boxes;
    /// The signs of texts that are not printed at their own size. Where the place isn't known, as on such a sheet,
    /// the sign stands at the head of the sheet.
    std::vector<clsPageSign> signs;
};

/// None of either where the pages are not as many as they should be.
clsPageMarks mdPageMarks(const clsForecast &sheets, const QString &formType, int pages);

/// Where the target of such a box is entered.
struct clsTargetPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its field or grid
    int item = 0; ///< its order in the list; 0 for none
};

/// False where it has no place.
bool mdFindTarget(const QString &target, clsTargetPlace &place);
