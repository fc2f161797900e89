#pragma once

class clsZR3Form;
class clsZR3ScheduleOfTimeItem;

// The preview of the numbered notes to the schedule of time: the items that have a description.

void mdExportPreviewAdditionalInformationInit();
/// Draws the notes in the form's present list of them.
void mdExportPreviewAdditionalInformationDraw(const clsZR3Form &form);
void mdExportPreviewAdditionalInformationItemDraw(const clsZR3ScheduleOfTimeItem &item);
void mdExportPreviewAdditionalInformationDeInit();
