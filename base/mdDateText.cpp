#include "base/mdDateText.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int LastYearOfThisCentury = 29;
constexpr qsizetype DigitsOfFullYear = 4;
constexpr qsizetype ShortestMonthName = 3;

constexpr QLatin1String MonthNames[] = {QLatin1String("january"), QLatin1String("february"), QLatin1String("march"),
    QLatin1String("april"), QLatin1String("may"), QLatin1String("june"), QLatin1String("july"), QLatin1String("august"),
    QLatin1String("september"), QLatin1String("october"), QLatin1String("november"), QLatin1String("december")};

/// A number of `least` to `most` digits; -1 for any other text.
int plainNumber(QStringView text, qsizetype least, qsizetype most)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (text.size() < least || text.size() > most || !std::all_of(text.begin(), text.end(), isDigit))
        return -1;
    return std::accumulate(
        text.begin(), text.end(), 0, [](int number, QChar digit) { return number * 10 + digit.digitValue(); });
}

/// The number of a month; 0 or less if there is none.
int monthFromText(QStringView text)
{
    if (text.size() >= ShortestMonthName)
        for (int month = 0; month < 12; ++month)
            if (MonthNames[month].startsWith(text, Qt::CaseInsensitive))
                return month + 1;
    return plainNumber(text, 1, 2);
}

/// A year has one, two or four digits; three are a year half typed.
int yearFromText(QStringView text)
{
    const int year = text.size() == DigitsOfFullYear ? plainNumber(text, DigitsOfFullYear, DigitsOfFullYear)
                                                     : plainNumber(text, 1, 2);
    return year < 0 ? year : FullYear(year, text.size());
}

} // namespace

int FullYear(int year, qsizetype digits)
{
    if (digits > 2)
        return year;
    return year <= LastYearOfThisCentury ? 2000 + year : 1900 + year;
}

std::optional<QDate> DateFromText(QStringView text)
{
    const qsizetype first = text.indexOf(u'/');
    const qsizetype second = text.indexOf(u'/', first + 1);
    if (first < 0 || second < 0 || text.indexOf(u'/', second + 1) >= 0)
        return {};
    const QStringView parts[]
        = {text.first(first), text.sliced(first + 1, second - first - 1), text.sliced(second + 1)};
    const bool yearFirst = parts[0].size() == DigitsOfFullYear;
    const int day = plainNumber(parts[yearFirst ? 2 : 0], 1, 2);
    const int month = monthFromText(parts[1]);
    const int year = yearFromText(parts[yearFirst ? 0 : 2]);
    if (day < 1 || month < 1 || year < 1 || !QDate::isValid(year, month, day))
        return {};
    return QDate(year, month, day);
}

bool IsDate(QStringView text)
{
    return DateFromText(text).has_value();
}

QString DateText(QDate date)
{
    return date.toString(QStringLiteral("dd/MM/yy"));
}
