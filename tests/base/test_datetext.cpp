#include "base/mdDateText.h"

#include <gtest/gtest.h>

namespace {

struct clsDateRow {
    const char *text;
    QDate date;
};

void PrintTo(const clsDateRow &row, std::ostream *stream)
{
    *stream << '"' << row.text << '"';
}

class DateTexts : public testing::TestWithParam<clsDateRow> { };
class NoDateTexts : public testing::TestWithParam<const char *> { };

} // namespace

TEST_P(DateTexts, IsReadDayFirst)
{
    EXPECT_TRUE(IsDate(QString::fromUtf8(GetParam().text)));
    EXPECT_EQ(GetParam().date, DateFromText(QString::fromUtf8(GetParam().text)));
}

INSTANTIATE_TEST_SUITE_P(Forms, DateTexts,
    testing::Values(clsDateRow {"01/02/24", {2024, 2, 1}}, clsDateRow {"1/2/2024", {2024, 2, 1}},
        clsDateRow {"1/2/5", {2005, 2, 1}}, clsDateRow {"31/12/29", {2029, 12, 31}},
        clsDateRow {"01/01/30", {1930, 1, 1}}, clsDateRow {"01/01/99", {1999, 1, 1}},
        clsDateRow {"01/01/00", {2000, 1, 1}}, clsDateRow {"14/08/1979", {1979, 8, 14}},
        clsDateRow {"1/Jan/24", {2024, 1, 1}}, clsDateRow {"1/sept/24", {2024, 9, 1}},
        clsDateRow {"21/November/2026", {2026, 11, 21}}, clsDateRow {"2024/02/29", {2024, 2, 29}}));

INSTANTIATE_TEST_SUITE_P(LeapYears, DateTexts,
    testing::Values(clsDateRow {"29/02/24", {2024, 2, 29}}, clsDateRow {"29/02/00", {2000, 2, 29}},
        clsDateRow {"29/02/96", {1996, 2, 29}}));

TEST_P(NoDateTexts, IsNoDate)
{
    EXPECT_FALSE(IsDate(QString::fromUtf8(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(NoDates, NoDateTexts,
    testing::Values("", "/", "//", "abc", "31/02/24", "29/02/23", "29/02/1900", "31/04/24", "32/01/24", "0/1/24",
        "1/0/24", "1/13/24", "02/13/24", "1/2", "1/2/24/", "/1/2/24", "1//24", "1/2/024", "1/2/12345", "1/2/0000",
        "+1/2/24", "1/-2/24", "001/2/24", "1/002/24", "1/Ja/24", "1/Foo/24", "1/Januaryx/24", "Jan/1/24", "1/2/24x",
        "1.2.24", "१/२/२४", "24/1/2024/"));

TEST(DateFormat, IsWrittenWithTwoDigitsEach)
{
    EXPECT_EQ(QStringLiteral("01/02/24"), DateText(QDate(2024, 2, 1)));
    EXPECT_EQ(QStringLiteral("31/12/99"), DateText(QDate(1999, 12, 31)));
}

TEST(DateFormat, EveryDayOfTheCenturyOfTwoDigitsIsReadAsItIsWritten)
{
    for (QDate date(1930, 1, 1); date < QDate(2030, 1, 1); date = date.addDays(1))
        ASSERT_EQ(date, DateFromText(DateText(date))) << DateText(date).toStdString();
}
