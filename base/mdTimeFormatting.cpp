#include "base/mdTimeFormatting.h"

#include "base/clsRunTimeError.h"
#include "base/mdNumberText.h"

#include <cmath>
#include <cstdlib>

namespace {

constexpr double MinutesPerHour = 60.0;

/// At least two digits, after the sign.
QString atLeastTwoDigits(int value)
{
    const QString digits = QString::number(std::abs(value)).rightJustified(2, u'0');
    return value < 0 ? u'-' + digits : digits;
}

} // namespace

int TimeToMinutes(QStringView timeText)
{
    if (timeText.isEmpty())
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);
    const qsizetype colon = timeText.indexOf(u':');
    const QStringView hours = colon < 0 ? timeText : timeText.first(colon);
    const int ofHours = LongFromDouble(TextValue(hours) * MinutesPerHour);
    if (colon < 0)
        throw clsRunTimeError(clsRunTimeError::SubscriptOutOfRange);

    // A second colon ends the number of minutes; the text after it is ignored.
    return LongFromDouble(ofHours + TextValue(timeText.sliced(colon + 1)));
}

QString MinutesToTime(int minutes)
{
    const double hours = std::floor(minutes / MinutesPerHour);
    const double rest = minutes - hours * MinutesPerHour;
    return atLeastTwoDigits(int(hours)) + u':' + atLeastTwoDigits(int(rest));
}
