#include "base/mdReadAs.h"

#include "base/mdTypedText.h"

#include <gtest/gtest.h>

namespace {

using clsTold = std::pair<std::string, std::string>; // the message, and the suggested text

const clsTold Nothing;

clsTold told(const std::optional<clsReadAs> &reading)
{
    return reading ? clsTold(reading->words.toStdString(), reading->better.toStdString()) : Nothing;
}

clsTold amount(const char *text)
{
    const QString typed = QString::fromUtf8(text);
    return told(DecimalReadAs(typed, *TypedDecimal(typed)));
}

clsTold date(const char *text, int lastYear = 2025)
{
    const QString typed = QString::fromUtf8(text);
    return told(DateReadAs(typed, *TypedDate(typed, lastYear)));
}

} // namespace

TEST(ReadAs, SaysNothingOfAnAmountThatStandsAsTyped)
{
    for (const char *text :
        {"1250", "1250.5", "1250.50", "1250.500", "£1250.00", "20%", "", "-5", " 12.5 ", ".5", "1."})
        EXPECT_EQ(Nothing, amount(text)) << text;
}

TEST(ReadAs, OffersTheAmountOfWhichACommaCutOffTheRest)
{
    EXPECT_EQ(clsTold("Typed 1,250, read as 1.00: amounts take no comma", "1250.00"), amount("1,250"));
    EXPECT_EQ(clsTold("Typed £1,250.75, read as 1.00: amounts take no comma", "1250.75"), amount("£1,250.75"));
    EXPECT_EQ(clsTold("Typed 1,234,567.89, read as 1.00: amounts take no comma", "1234567.89"), amount("1,234,567.89"));
    EXPECT_EQ(clsTold("Typed -1,250, read as -1.00: amounts take no comma", "-1250.00"), amount("-1,250"));
}

TEST(ReadAs, OffersNothingWhereTheCommaMayBeTheDecimalPoint)
{
    EXPECT_EQ(clsTold("Typed 1.250,00, read as 1.25: amounts take no comma", ""), amount("1.250,00"));
}

TEST(ReadAs, ACommaThatCutsNothingOffIsNotTold)
{
    EXPECT_EQ(Nothing, amount("12,"));
}

TEST(ReadAs, TellsThatAmountsAreRounded)
{
    EXPECT_EQ(clsTold("Typed 12.345, read as 12.35: amounts have two decimals", ""), amount("12.345"));
    EXPECT_EQ(clsTold("Typed 0.001, read as 0.00: amounts have two decimals", ""), amount("0.001"));
}

TEST(ReadAs, SaysNothingOfADateThatStandsAsTyped)
{
    for (const char *text :
        {"", "1/2/25", "01/02/2025", "1.2.25", "1-2-2025", "1 Feb 2025", "1/2/1950", "1/2/50", "2025/02/01"})
        EXPECT_EQ(Nothing, date(text)) << text;
}

TEST(ReadAs, TellsTheYearOfADateTypedWithoutOne)
{
    EXPECT_EQ(clsTold("Read as 01/02/25: the year last used", ""), date("1/2"));
    EXPECT_EQ(clsTold("Read as 03/04/24: the year last used", ""), date("3.4", 2024));
}

TEST(ReadAs, TellsThatAYearLosesItsCentury)
{
    EXPECT_EQ(clsTold("Typed 1/2/1850, read as 01/02/50: a year keeps its last two figures", ""), date("1/2/1850"));
    EXPECT_EQ(clsTold("Typed 15/12/2050, read as 15/12/50: a year keeps its last two figures", ""), date("15/12/2050"));
}

TEST(ReadAs, TellsWhatStandsForNoDate)
{
    EXPECT_EQ(clsTold("Stands for no date", ""), date("31/12/29"));
    EXPECT_EQ(clsTold("Stands for no date", ""), date("31.12.2029"));
}
