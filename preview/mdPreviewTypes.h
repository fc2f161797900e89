#pragma once

/// What the preview can show. The main window remembers the kind last shown and begins with the schedule of time.
enum class clsPreviewKind { ScheduleOfTime = 0, AdditionalInformation = 1 };
