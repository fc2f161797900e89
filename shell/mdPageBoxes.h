#pragma once

#include "preview/oPageView.h"

#include <vector>

struct clsForecast;

/// The boxes on the pages of a finished form that lead to their fields. Only a page's own sheet has some, and none
/// where it runs on; no sheet has any where the pages are not as many as they should be.
std::vector<clsPageBox> mdPageBoxes(const clsForecast &sheets, const QString &formType, int pages);
