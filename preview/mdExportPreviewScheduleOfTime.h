#pragma once

class clsSchedulePrices;
class clsZR3Form;
class clsZR3ScheduleOfTimeItem;

// The preview of the schedule of time in the layout of the printed one: a line for each item, with its time in one of
// five columns, and two lines of totals.

void mdExportPreviewScheduleOfTimeInit();
/// Draws the items of the form's export list as it stands.
void mdExportPreviewScheduleOfTimeDraw(const clsZR3Form &form);
void mdExportPreviewScheduleOfTimeItemDraw(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrices &prices);
void mdExportPreviewScheduleOfTimeDeInit();
