#pragma once

#include "controls/clsGridColumn.h"

/// What each item of the open claim's schedule comes to. Where one can't be priced it is the error, with the reason.
clsGridTexts mdScheduleAmounts();
