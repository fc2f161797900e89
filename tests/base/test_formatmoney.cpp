#include "base/mdFormatMoney.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

struct Row {
    const char *given;
    const char *printed;
};

constexpr Row Amounts[] = {
    {"", "0.00"},
    {"   ", "0.00"},
    {"0", "0.00"},
    {"0.5", "0.50"},
    {".5", "0.50"},
    {"5.", "5.00"},
    {"1234.5", "1,234.50"},
    {"1,234.50", "1,234.50"},
    {"12,34", "1,234.00"},
    {"1.2,3", "1.23"}, // the position of commas is not checked
    {"999.99", "999.99"},
    {"1000", "1,000.00"},
    {"100000", "100,000.00"},
    {"1234567.891", "1,234,567.89"},
    {"-3", "-3.00"},
    {"+3", "3.00"},
    {"-1234.5", "-1,234.50"},
    {"  12 ", "12.00"},
    {"007", "7.00"},
    // Half away from zero, on the decimal text: 1.005 is not a binary fraction and would round down as a double.
    {"1.005", "1.01"},
    {"1.00499999", "1.00"},
    {"-1.005", "-1.01"},
    {"9.995", "10.00"},
    {"999.995", "1,000.00"},
    {"0.004", "0.00"},
    {"-0.004", "0.00"},
    {"-0.005", "-0.01"},
    {"12345678901234567890.125", "12,345,678,901,234,567,890.13"},
};

constexpr const char *NoNumbers[] = {
    "abc",
    "1.2.3",
    "12a",
    "1 2",
    "- 3",
    "--3",
    "3-",
    "-",
    "+",
    ".",
    ",",
    "£5",
    "(3)",
    "1e3",
    "&H10",
    "\t5",
    "\u0661",
};

TEST(mdFormatMoney, PrintsAmountsWithTwoDecimalsAndCommas)
{
    for (const Row &row : Amounts)
        EXPECT_EQ(mdFormatMoney(QString::fromUtf8(row.given)), QString::fromUtf8(row.printed)) << row.given;
}

TEST(mdFormatMoney, WhatIsNoNumberIsATypeMismatch)
{
    for (const char *text : NoNumbers)
        EXPECT_EQ(errorOf([&] { mdFormatMoney(QString::fromUtf8(text)); }), clsRunTimeError::TypeMismatch) << text;
}

TEST(mdFormatMoney, PrintsAnAmountAsItPrintsItsText)
{
    std::vector<std::int64_t> counts = {0, 1, 49, 50, 51, 99, 100, 4999, 5000, 9949, 9950, 9999, 10'000, 99'949,
        9'999'949, 9'999'950, 12'345'678, 1'000'000'000'000, std::numeric_limits<std::int64_t>::max()};
    for (std::int64_t count = 7; count < std::numeric_limits<std::int64_t>::max() / 13; count = count * 11 + 49)
        counts.push_back(count);
    for (const std::int64_t count : counts)
        for (const std::int64_t signedCount : {count, -count}) {
            const Money amount = Money::fromTenThousandths(signedCount);
            EXPECT_EQ(mdFormatMoney(MoneyToText(amount)), mdFormatMoney(amount)) << signedCount;
        }
    const Money least = Money::fromTenThousandths(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(QStringLiteral("-922,337,203,685,477.58"), mdFormatMoney(least));
    EXPECT_EQ(QStringLiteral("1,234,567.90"), mdFormatMoney(MoneyFromText(QStringLiteral("1234567.895"))));
    EXPECT_EQ(QStringLiteral("-0.01"), mdFormatMoney(MoneyFromText(QStringLiteral("-0.005"))));
    EXPECT_EQ(QStringLiteral("0.00"), mdFormatMoney(MoneyFromText(QStringLiteral("-0.0049"))));
}

} // namespace
