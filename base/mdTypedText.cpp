#include "base/mdTypedText.h"

#include "base/Money.h"
#include "base/clsRunTimeError.h"
#include "base/mdClock.h"
#include "base/mdDateText.h"
#include "base/mdNumberText.h"
#include "base/mdTimeFormatting.h"

namespace {

constexpr double MinutesPerHour = 60.0;

/// The year of a text of the form "dd/mm/yy".
int yearOf(const QString &dateText)
{
    return DateFromText(dateText)->year();
}

/// A whole number; an empty part of a time counts as 0.
int wholeNumber(QStringView part)
{
    return part.trimmed().isEmpty() ? 0 : LongFromStrictText(part);
}

int minutesOfFraction(QStringView decimals)
{
    return LongFromDouble(DoubleFromStrictText(QStringLiteral("0.") + decimals.toString()) * MinutesPerHour);
}

/// Hours, colon, minutes; the minutes may be more than 59.
QString timeAsTyped(QStringView text)
{
    const qsizetype colon = text.indexOf(u':');
    const qsizetype point = text.indexOf(u'.');
    int hours = 0;
    int minutes = 0;
    if (colon >= 0) {
        hours = wholeNumber(text.first(colon));
        minutes = wholeNumber(text.sliced(colon + 1));
    } else if (point >= 0) {
        hours = wholeNumber(text.first(point));
        minutes = minutesOfFraction(text.sliced(point + 1));
    } else {
        minutes = wholeNumber(text);
    }
    return QString::number(hours) + u':' + QString::number(minutes);
}

/// The result of a rule; nothing if it meets a number that is invalid or out of range.
template <class Rule> std::optional<QString> fitting(Rule rule)
{
    try {
        return rule();
    } catch (const clsRunTimeError &) {
        return {};
    }
}

} // namespace

std::optional<QString> TypedDate(const QString &text, int &lastYear)
{
    if (text.isEmpty())
        return text;
    if (lastYear == 0)
        lastYear = Now().date().year();

    QString date = text;
    for (const QChar separator : {u'.', u' ', u'-'})
        date.replace(separator, u'/');
    if (date.count(u'/') == 1)
        date += u'/' + QString::number(lastYear);
    // Checked with its year, so that 29/02 fits in leap years only.
    const std::optional<QDate> typed = DateFromText(date);
    if (!typed)
        return {};

    QString result = DateText(*typed);
    if (const int year = yearOf(result); year != yearOf(NoDate))
        lastYear = year;
    return result;
}

std::optional<QString> TypedDecimal(const QString &text)
{
    QString number = text;
    number.remove(u'%').remove(u'£');
    if (number.isEmpty())
        number = QStringLiteral("0");
    if (!IsNumeric(number))
        return {};
    return fitting([&] { return QString::number(RoundMoney2(TextValue(number)).toDouble(), 'f', 2); });
}

std::optional<QString> TypedInteger(const QString &text)
{
    QString number = text;
    number.remove(u' ');
    if (number.isEmpty())
        number = QStringLiteral("0");
    return fitting([&] {
        // Rejects numbers beyond 32 bits, which a record can't store.
        LongFromStrictText(number);
        return number;
    });
}

std::optional<QString> TypedTime(const QString &text)
{
    QString number = text;
    number.replace(u':', u'.');
    if (!IsNumeric(number))
        return {};
    return fitting([&] {
        const QString result = MinutesToTime(TimeToMinutes(timeAsTyped(text)));
        TimeToMinutes(result); // refuses a result that could not be read again
        return result;
    });
}

QString TimeAfterOneMinute(const QString &timeText)
{
    return MinutesToTime(LongFromDouble(TimeToMinutes(timeText) + 1.0));
}
