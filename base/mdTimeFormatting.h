#pragma once

#include <QString>
#include <QStringView>

/// The minutes of a duration such as 01:30. There is no range check: 12:75 is 795 minutes, 1.5:00 is 90. A text without
/// a colon, and so an empty one, raises error 9; more than 32 bits of minutes error 6.
int TimeToMinutes(QStringView timeText);

/// The duration as hours, a colon and minutes, each of at least two digits; hours have no limit.
QString MinutesToTime(int minutes);
