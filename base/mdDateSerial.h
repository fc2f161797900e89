#pragma once

#include <QString>

/// A date of the form day/month/year as "yyyymmdd", a text that sorts as the dates do. A year of two digits up to 29 is
/// of this century, later ones of the last. A text that is no date comes back as it is.
QString mdDateSerial(const QString &date);
