#pragma once

/// The kinds of preview. The main window remembers the last one and starts with the schedule of time.
enum class clsPreviewKind { ScheduleOfTime = 0, AdditionalInformation = 1 };
