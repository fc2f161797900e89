#pragma once

class clsZR3Form;
class clsZR3ScheduleOfTimeItem;

// The preview of the numbered notes that go with the schedule of time: the items that carry a description.

void mdExportPreviewAdditionalInformationInit();
/// Draws the notes of the form's list of them as it stands.
void mdExportPreviewAdditionalInformationDraw(const clsZR3Form &form);
void mdExportPreviewAdditionalInformationItemDraw(const clsZR3ScheduleOfTimeItem &item);
void mdExportPreviewAdditionalInformationDeInit();
