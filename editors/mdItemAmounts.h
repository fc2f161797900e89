#pragma once

#include "controls/clsGridColumn.h"

/// The amount of each item in the open claim's schedule. An item that can't be priced raises its error, with the
/// reason.
clsGridTexts mdScheduleAmounts();
