#pragma once

#include "preview/oPageView.h"

#include <vector>

struct clsForecast;

/// What to show on and beside the pages of a finished form.
struct clsPageMarks {
    /// Links to fields, and from rows of lists to their items. None on a sheet with a row that has grown.
    std::vector<clsPageBox> boxes;
    /// Signs for texts not printed at their full size. If the place is unknown, as on such a sheet, the sign is at its
    /// top.
    std::vector<clsPageSign> signs;
};

/// Empty if the number of pages is not the forecast one.
clsPageMarks mdPageMarks(const clsForecast &sheets, const QString &formType, int pages);

/// Where the target of a box is entered.
struct clsTargetPlace {
    QString section; ///< the text of the section's tab
    QString control; ///< the object name of its field or grid
    int item = 0; ///< its order in the list; 0 for none
};

/// False if the target has no place.
bool mdFindTarget(const QString &target, clsTargetPlace &place);
