#include "base/mdTimeToMoney.h"

#include "base/mdTimeFormatting.h"

Money TimeToMoney(QStringView timeText, Money ratePerHour)
{
    return MinutesToMoney(TimeToMinutes(timeText), ratePerHour);
}

Money MinutesToMoney(int minutes, Money ratePerHour)
{
    // Divides first, multiplies once, on the whole time: another order changes the last digit, and the claim must
    // agree to the penny with those already lodged.
    const double hours = double(minutes) / 60.0;
    return RoundMoney2(ratePerHour.toDouble() * hours);
}
