#pragma once

#include <QString>
#include <QStringView>

/// The minutes of a duration such as 01:30. There is no range check: 12:75 is 795 minutes, 1.5:00 is 90. Text without a
/// colon (so also empty text) raises error 9; more than 32 bits of minutes error 6.
int TimeToMinutes(QStringView timeText);

/// The duration as hours, a colon and minutes, each of at least two digits; hours are unlimited.
QString MinutesToTime(int minutes);
