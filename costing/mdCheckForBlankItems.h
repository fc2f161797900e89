#pragma once

#include <QString>

class clsZR3Form;

/// What would bill nothing, and the text that tells the user of it (line breaks are CR LF).
struct clsBlankItems {
    int ScheduleItems = 0;
    int Disbursements = 0;
    QString Message;
};

/// Counts the schedule items without a time and the disbursements, counsel's fees among them, whose amount and VAT are
/// both 0. Changes nothing. A time text without a colon is the subscript error.
clsBlankItems mdCountBlankItems(const clsZR3Form &form);

/// The user's command: counts and shows.
void CheckForBlankItems(const clsZR3Form &form);
