#pragma once

#include "costing/clsBill.h"

/// The number of schedule items without a time. A time without a colon is the subscript error.
int mdCountBlankScheduleItems(const clsBill &bill);
/// The number of disbursements, including counsel's fees, with a zero amount and VAT.
int mdCountBlankDisbursements(const clsZR3Form &form);
/// The message with both counts; its line breaks are CR LF.
QString mdBlankItemsMessage(const clsBill &bill);

/// The user's command for the current claim: counts the items that would bill nothing, and shows the counts. Changes
/// nothing and doesn't name the items.
void CheckForBlankItems();
void CheckForBlankItems(const clsZR3Form &form);
