#pragma once

class clsSchedulePrices;
class clsZR3Form;
class clsZR3ScheduleOfTimeItem;

// The preview of the schedule of time in its printed layout: a line for each item, with its time in one of five
// columns, and two lines of totals.

void mdExportPreviewScheduleOfTimeInit();
/// Draws the items in the form's present export list.
void mdExportPreviewScheduleOfTimeDraw(const clsZR3Form &form);
void mdExportPreviewScheduleOfTimeItemDraw(const clsZR3ScheduleOfTimeItem &item, clsSchedulePrices &prices);
void mdExportPreviewScheduleOfTimeDeInit();
