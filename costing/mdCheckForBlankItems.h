#pragma once

#include "costing/clsBill.h"

/// The schedule items without a time. A time text without a colon is the subscript error.
int mdCountBlankScheduleItems(const clsBill &bill);
/// The disbursements, counsel's fees among them, whose amount and VAT are both 0.
int mdCountBlankDisbursements(const clsZR3Form &form);
/// The text that tells the user of both counts; its line breaks are CR LF.
QString mdBlankItemsMessage(const clsBill &bill);

/// The user's command, on the current claim: counts what would bill nothing, and shows it. Nothing is changed, and no
/// item named.
void CheckForBlankItems();
void CheckForBlankItems(const clsZR3Form &form);
