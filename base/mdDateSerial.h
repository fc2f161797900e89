#pragma once

#include <QString>

/// A date of the form day/month/year as "yyyymmdd", which sorts by date. A year of two digits up to 29 is in this
/// century, later ones in the last. Text that is not a date is returned unchanged.
QString mdDateSerial(const QString &date);
