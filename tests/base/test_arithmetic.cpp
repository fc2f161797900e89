#include "base/Money.h"
#include "base/mdNumberText.h"
#include "base/mdPercentageCalculate.h"
#include "base/mdTimeFormatting.h"
#include "base/mdTimeToMoney.h"
#include "tests/support/mdExpectError.h"
#include "tests/support/mdTestPrinting.h"

#include <QLocale>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace {

using Error = clsRunTimeError;

constexpr std::int64_t Largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t Smallest = std::numeric_limits<std::int64_t>::min();
constexpr double Infinity = std::numeric_limits<double>::infinity();
const double NoNumber = std::numeric_limits<double>::quiet_NaN();

constexpr Money units(std::int64_t tenThousandths)
{
    return Money::fromTenThousandths(tenThousandths);
}

Money money(const char16_t *text)
{
    return MoneyFromText(QStringView(text));
}

QString timeOf(int minutes)
{
    return MinutesToTime(minutes);
}

} // namespace

// The amount itself

TEST(Money, AddsAndSubtractsExactly)
{
    EXPECT_EQ(units(3), units(1) + units(2));
    EXPECT_EQ(units(-1), units(1) - units(2));
    EXPECT_EQ(units(-7), -units(7));
    Money sum;
    sum += units(Largest - 1);
    sum += units(1);
    EXPECT_EQ(units(Largest), sum);
}

TEST(Money, OverflowOfASumIsAnErrorAndNeverWraps)
{
    EXPECT_EQ(Error::Overflow, errorOf([] { units(Largest) + units(1); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { units(Smallest) + units(-1); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { units(Smallest) - units(1); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { units(0) - units(Smallest); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { -units(Smallest); }));
    EXPECT_EQ(units(Largest), units(Largest) + units(0));
    EXPECT_EQ(units(-1), units(Largest) + units(Smallest));
}

TEST(Money, AFailedSumLeavesTheAmountAsItWas)
{
    Money sum = units(Largest);
    EXPECT_EQ(Error::Overflow, errorOf([&] { sum += units(1); }));
    EXPECT_EQ(units(Largest), sum);
}

TEST(Money, ComparesAsNumbers)
{
    EXPECT_LT(units(-2), units(-1));
    EXPECT_GT(units(Largest), units(Smallest));
    EXPECT_EQ(Money(), units(0));
}

// MoneyFromText

TEST(MoneyFromText, TakesNumbersWithAndWithoutGroups)
{
    EXPECT_EQ(units(12'345'000), money(u"1,234.50"));
    EXPECT_EQ(units(12'345'000), money(u"1234.5"));
    EXPECT_EQ(units(0), money(u"0.00"));
    EXPECT_EQ(units(0), money(u"0"));
    EXPECT_EQ(units(472'500), money(u"47.25"));
    EXPECT_EQ(units(5'000), money(u".5"));
    EXPECT_EQ(units(50'000), money(u"5."));
    EXPECT_EQ(units(-125'000), money(u"-12.5"));
    EXPECT_EQ(units(125'000), money(u"+12.5"));
    EXPECT_EQ(units(1'000'000), money(u" \t100\r\n"));
    EXPECT_EQ(units(70'000), money(u"0000000000000000000000000000007"));
    EXPECT_EQ(units(0), money(u"-0"));
}

TEST(MoneyFromText, DoesNotCheckThePlacesOfTheCommas)
{
    EXPECT_EQ(units(12'345'000), money(u"1,2,3,4.5"));
    EXPECT_EQ(units(50'000), money(u",5"));
    EXPECT_EQ(units(50'000), money(u"5,"));
}

TEST(MoneyFromText, BlankOrOtherTextIsATypeMismatch)
{
    for (const char16_t *text :
        {u"", u" ", u"\r\n", u"abc", u"12a", u"a12", u"1.2.3", u".", u",", u"-", u"+", u"--1", u"1-", u"- 1", u"1 2",
            u"1e3", u"&H10", u"0x10", u"\u00a312", u"(5)", u"12%", u"inf", u"nan", u"\u0661", u"1\u00a0000", u"\uff11"})
        EXPECT_EQ(Error::TypeMismatch, errorOf([&] { money(text); })) << QString::fromUtf16(text).toStdString();
}

TEST(MoneyFromText, ANullCharacterIsNoPartOfANumber)
{
    EXPECT_EQ(Error::TypeMismatch, errorOf([] { MoneyFromText(QStringView(u"12\0", 3)); }));
}

TEST(MoneyFromText, RoundsBeyondFourDecimalsHalfToEven)
{
    EXPECT_EQ(units(0), money(u"0.00005"));
    EXPECT_EQ(units(2), money(u"0.00015"));
    EXPECT_EQ(units(2), money(u"0.00025"));
    EXPECT_EQ(units(-2), money(u"-0.00025"));
    EXPECT_EQ(units(3), money(u"0.0002500000000000000000000000001"));
    EXPECT_EQ(units(2), money(u"0.00024999999999999999999999999999"));
    EXPECT_EQ(units(10'000), money(u"0.99995"));
    EXPECT_EQ(units(9'998), money(u"0.99984999"));
}

TEST(MoneyFromText, ReachesTheLimitsAndNoFurther)
{
    EXPECT_EQ(units(Largest), money(u"922,337,203,685,477.5807"));
    EXPECT_EQ(units(Smallest), money(u"-922337203685477.5808"));
    EXPECT_EQ(units(Largest), money(u"922337203685477.58074999"));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"922337203685477.5808"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"922337203685477.58075"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"-922337203685477.5809"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"99999999999999999999999999999999"); }));
    // Two to the 64th ten-thousandths and its neighbours, which would wrap round to small values in 64 bits.
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"1844674407370955.1616"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"1844674407370955.2"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { money(u"1844674407370955.16155"); }));
}

TEST(MoneyFromText, AHugeTextIsJudgedToItsEnd)
{
    const QString nines(1'000'000, u'9');
    EXPECT_EQ(Error::Overflow, errorOf([&] { MoneyFromText(nines); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { MoneyFromText(nines + u'x'); }));
    EXPECT_EQ(units(10'000), MoneyFromText(QStringLiteral("0.") + nines));
    EXPECT_EQ(units(10'000), MoneyFromText(QString(1'000'000, u'0') + u'1'));
}

// MoneyFromDouble

TEST(MoneyFromDouble, RoundsHalfToEven)
{
    EXPECT_EQ(units(312), MoneyFromDouble(0.03125)); // 312.5
    EXPECT_EQ(units(938), MoneyFromDouble(0.09375)); // 937.5
    EXPECT_EQ(units(-312), MoneyFromDouble(-0.03125));
    EXPECT_EQ(units(83'350), MoneyFromDouble(8.335));
    EXPECT_EQ(units(0), MoneyFromDouble(-0.0));
}

TEST(MoneyFromDouble, OutOfRangeOrNoNumberIsOverflow)
{
    for (const double value : {Infinity, -Infinity, NoNumber, 1e300, -1e300, 922337203685477.6, -922337203685477.7})
        EXPECT_EQ(Error::Overflow, errorOf([&] { MoneyFromDouble(value); })) << value;
    // The double below the upper limit: doubles are 1024 ten-thousandths apart there.
    EXPECT_EQ(units(Largest - 1023), MoneyFromDouble(double(Largest - 1023) / 10000.0));
    EXPECT_EQ(units(Smallest), MoneyFromDouble(-922337203685477.5808));
}

// MoneyToText

TEST(MoneyToText, IsPlainAndShort)
{
    EXPECT_EQ(QStringLiteral("1234.5"), MoneyToText(units(12'345'000)));
    EXPECT_EQ(QStringLiteral("1234"), MoneyToText(units(12'340'000)));
    EXPECT_EQ(QStringLiteral("0"), MoneyToText(units(0)));
    EXPECT_EQ(QStringLiteral("12.5"), MoneyToText(units(125'000)));
    EXPECT_EQ(QStringLiteral("8.335"), MoneyToText(units(83'350)));
    EXPECT_EQ(QStringLiteral("0.0001"), MoneyToText(units(1)));
    EXPECT_EQ(QStringLiteral("-0.05"), MoneyToText(units(-500)));
    EXPECT_EQ(QStringLiteral("100"), MoneyToText(units(1'000'000)));
    EXPECT_EQ(QStringLiteral("0.101"), MoneyToText(units(1'010)));
    EXPECT_EQ(QStringLiteral("922337203685477.5807"), MoneyToText(units(Largest)));
    EXPECT_EQ(QStringLiteral("-922337203685477.5808"), MoneyToText(units(Smallest)));
}

TEST(MoneyToText, ComesBackWithoutLoss)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20'000; ++i) {
        const Money amount = units(std::int64_t(random()) >> (random() % 64));
        EXPECT_EQ(amount, MoneyFromText(MoneyToText(amount)));
    }
}

// RoundMoney2

TEST(RoundMoney2, OfAnAmountIsHalfAwayFromZero)
{
    EXPECT_EQ(money(u"25.01"), RoundMoney2(money(u"25.0050")));
    EXPECT_EQ(money(u"-25.01"), RoundMoney2(money(u"-25.0050")));
    EXPECT_EQ(money(u"25"), RoundMoney2(money(u"25.0049")));
    EXPECT_EQ(money(u"-25"), RoundMoney2(money(u"-25.0049")));
    EXPECT_EQ(money(u"8.34"), RoundMoney2(money(u"8.335")));
    EXPECT_EQ(Money(), RoundMoney2(units(49)));
    EXPECT_EQ(units(100), RoundMoney2(units(50)));
    EXPECT_EQ(money(u"922337203685477.58"), RoundMoney2(units(Largest)));
    EXPECT_EQ(money(u"-922337203685477.58"), RoundMoney2(units(Smallest)));
}

TEST(RoundMoney2, OfADoubleTakesFourteenDigitsFirst)
{
    EXPECT_EQ(money(u"4.73"), RoundMoney2(4.725));
    EXPECT_EQ(money(u"4.73"), RoundMoney2(4.725000000000001));
    EXPECT_EQ(money(u"4.73"), RoundMoney2(4.72499999999999));
    EXPECT_EQ(money(u"4.72"), RoundMoney2(4.7249999999999));
    EXPECT_EQ(money(u"-4.73"), RoundMoney2(-4.72499999999999));
    EXPECT_EQ(money(u"1.01"), RoundMoney2(1.005)); // the double lies below 1.005
    EXPECT_EQ(money(u"10"), RoundMoney2(9.9999999999999999));
    EXPECT_EQ(money(u"100"), RoundMoney2(99.995));
    EXPECT_EQ(money(u"99.99"), RoundMoney2(99.9949999));
}

TEST(RoundMoney2, OfADoubleNearNothing)
{
    EXPECT_EQ(Money(), RoundMoney2(0.0));
    EXPECT_EQ(Money(), RoundMoney2(-0.0));
    EXPECT_EQ(Money(), RoundMoney2(0.00499));
    EXPECT_EQ(money(u"0.01"), RoundMoney2(0.005));
    EXPECT_EQ(money(u"-0.01"), RoundMoney2(-0.005));
    EXPECT_EQ(Money(), RoundMoney2(1e-300));
    EXPECT_EQ(Money(), RoundMoney2(5e-324));
}

TEST(RoundMoney2, OfALargeDoubleKeepsFourteenDigits)
{
    EXPECT_EQ(money(u"99999999999.99"), RoundMoney2(99999999999.99));
    // Exactly half a penny, and exactly half a unit of the fourteenth digit: away from zero in both cases.
    EXPECT_EQ(money(u"100000000000.13"), RoundMoney2(100000000000.125));
    EXPECT_EQ(money(u"1234567890123.3"), RoundMoney2(1234567890123.25));
    EXPECT_EQ(money(u"922337203685470"), RoundMoney2(922337203685472.0));
    // The last fourteen-digit value in range is 92233720368547 tens; this one rounds to the next.
    EXPECT_EQ(Error::Overflow, errorOf([] { RoundMoney2(922337203685477.0); }));
}

TEST(RoundMoney2, OutOfRangeOrNoNumberIsOverflow)
{
    for (const double value :
        {Infinity, -Infinity, NoNumber, 1e300, -1e300, 1e15, 999999999999999.0, -999999999999999.0})
        EXPECT_EQ(Error::Overflow, errorOf([&] { RoundMoney2(value); })) << value;
}

// TextValue

TEST(TextValue, ReadsTheLeadingNumber)
{
    EXPECT_EQ(0.0, TextValue(u""));
    EXPECT_EQ(0.0, TextValue(u"abc"));
    EXPECT_EQ(0.0, TextValue(u"."));
    EXPECT_EQ(0.0, TextValue(u"-"));
    EXPECT_EQ(12.5, TextValue(u"12.5"));
    EXPECT_EQ(12.5, TextValue(u"12.50 hours"));
    EXPECT_EQ(5.0, TextValue(u"05abc"));
    EXPECT_EQ(0.5, TextValue(u".5"));
    EXPECT_EQ(5.0, TextValue(u"5."));
    EXPECT_EQ(1.2, TextValue(u"1.2.3"));
    EXPECT_EQ(1.0, TextValue(u"1,234"));
    EXPECT_EQ(0.0, TextValue(u",5"));
}

TEST(TextValue, SkipsBlanksBeforeAndWithin)
{
    EXPECT_EQ(123.0, TextValue(u"  1 2\t3 "));
    EXPECT_EQ(1.5, TextValue(u"1. 5"));
    EXPECT_EQ(-5.0, TextValue(u" - 5"));
    EXPECT_EQ(7.0, TextValue(u"\r\n7\r\n"));
}

TEST(TextValue, ReadsOneSignAndNoExponentNorHexadecimal)
{
    EXPECT_EQ(-12.0, TextValue(u"-12"));
    EXPECT_EQ(12.0, TextValue(u"+12"));
    EXPECT_EQ(0.0, TextValue(u"--12"));
    EXPECT_EQ(0.0, TextValue(u"+-12"));
    EXPECT_EQ(12.0, TextValue(u"12-3"));
    EXPECT_EQ(0.0, TextValue(u".-3"));
    EXPECT_EQ(1.0, TextValue(u"1e3"));
    EXPECT_EQ(1.0, TextValue(u"1d3"));
    EXPECT_EQ(0.0, TextValue(u"&H10"));
    EXPECT_EQ(0.0, TextValue(u"0x10"));
    EXPECT_EQ(0.0, TextValue(u"\u0661"));
    EXPECT_FALSE(std::signbit(TextValue(u"-0")));
}

TEST(TextValue, NeverFailsOnHugeTexts)
{
    EXPECT_EQ(Infinity, TextValue(QString(100'000, u'9')));
    EXPECT_EQ(-Infinity, TextValue(u'-' + QString(100'000, u'9')));
    EXPECT_EQ(0.0, TextValue(QStringLiteral("0.") + QString(100'000, u'0') + u'1'));
    EXPECT_EQ(0.0, TextValue(QStringLiteral(".") + QString(100'000, u'0') + u'1'));
    EXPECT_EQ(1.0, TextValue(QString(100'000, u'0') + u'1'));
    EXPECT_EQ(1.0, TextValue(QStringLiteral("0.") + QString(100'000, u'9')));
    EXPECT_EQ(0.0, TextValue(QString(100'000, u' ')));
}

TEST(TextValue, ReadsASignBeforeANumberOfAnyLength)
{
    EXPECT_EQ(-1.2345678901234567, TextValue(u"-1.2345678901234567"));
    EXPECT_EQ(1.2345678901234567, TextValue(u"+1.2345678901234567"));
    EXPECT_EQ(-12345678901234567890.0, TextValue(u" - 1234567890 1234567890"));
}

TEST(TextValue, IsTheNearestDouble)
{
    // The reference is the C library in the "C" locale.
    std::mt19937 random(2);
    for (int i = 0; i < 50'000; ++i) {
        std::string number;
        const int digits = 1 + int(random() % 25);
        const int point = int(random() % unsigned(digits + 1));
        for (int at = 0; at < digits; ++at) {
            if (at == point)
                number += '.';
            number += char('0' + random() % 10);
        }
        EXPECT_EQ(std::strtod(number.c_str(), nullptr), TextValue(QString::fromStdString(number))) << number;
    }
}

// 32-bit integers

TEST(LongFromText, IsLenientAndRoundsHalfToEven)
{
    EXPECT_EQ(0, LongFromText(u""));
    EXPECT_EQ(0, LongFromText(u"abc"));
    EXPECT_EQ(12, LongFromText(u"12abc"));
    EXPECT_EQ(0, LongFromText(u"0.5"));
    EXPECT_EQ(2, LongFromText(u"1.5"));
    EXPECT_EQ(2, LongFromText(u"2.5"));
    EXPECT_EQ(-2, LongFromText(u"-2.5"));
    EXPECT_EQ(2147483647, LongFromText(u"2147483647.4"));
    EXPECT_EQ(std::numeric_limits<int>::min(), LongFromText(u"-2147483648.5"));
}

TEST(LongFromText, BeyondThirtyTwoBitsIsOverflow)
{
    for (const char16_t *text : {u"2147483647.5", u"2147483648", u"-2147483649", u"99999999999999999999"})
        EXPECT_EQ(Error::Overflow, errorOf([&] { LongFromText(QStringView(text)); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { LongFromText(QString(1'000, u'9')); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { LongFromDouble(NoNumber); }));
}

TEST(LongFromStrictText, TakesNumbersOnly)
{
    EXPECT_EQ(1234, LongFromStrictText(u" 1,234 "));
    EXPECT_EQ(2, LongFromStrictText(u"2.5"));
    EXPECT_EQ(4, LongFromStrictText(u"3.5"));
    EXPECT_EQ(3, LongFromStrictText(u"2.50001"));
    EXPECT_EQ(std::numeric_limits<int>::min(), LongFromStrictText(u"-2147483648"));
    EXPECT_EQ(Error::Overflow, errorOf([] { LongFromStrictText(u"2147483647.5"); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([] { LongFromStrictText(u""); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([] { LongFromStrictText(u"12abc"); }));
}

TEST(BooleanFromText, TakesTheWordsAndNumbersOnly)
{
    for (const auto text : {"True", "true", "TRUE", "1", "-1", " 0.5 ", "1,000"})
        EXPECT_TRUE(BooleanFromText(QString::fromLatin1(text))) << text;
    for (const auto text : {"False", "false", "FALSE", "0", " 0.00 ", "-0"})
        EXPECT_FALSE(BooleanFromText(QString::fromLatin1(text))) << text;
    for (const auto text : {"", " ", "Yes", " True", "TrueTrue", "1abc"})
        EXPECT_EQ(Error::TypeMismatch, errorOf([text] { BooleanFromText(QString::fromLatin1(text)); })) << text;
    EXPECT_EQ(Error::Overflow, errorOf([] { BooleanFromText(u"9999999999999999999999"); }));
}

// Durations

TEST(TimeToMinutes, ReadsHoursAndMinutes)
{
    EXPECT_EQ(0, TimeToMinutes(u"00:00"));
    EXPECT_EQ(90, TimeToMinutes(u"01:30"));
    EXPECT_EQ(7385, TimeToMinutes(u"123:05"));
    EXPECT_EQ(795, TimeToMinutes(u"12:75"));
    EXPECT_EQ(780, TimeToMinutes(u"12:60"));
    EXPECT_EQ(90, TimeToMinutes(u"1.5:00"));
    EXPECT_EQ(125, TimeToMinutes(u"2:05abc"));
    EXPECT_EQ(65, TimeToMinutes(u"1:05:59"));
    EXPECT_EQ(0, TimeToMinutes(u":"));
    EXPECT_EQ(-30, TimeToMinutes(u"-1:30"));
}

TEST(TimeToMinutes, RoundsHalfToEvenTwice)
{
    EXPECT_EQ(2, TimeToMinutes(u"0.025:0.5")); // 1.5 minutes are 2, and 2.5 are 2
    EXPECT_EQ(0, TimeToMinutes(u"0:0.5"));
    EXPECT_EQ(2, TimeToMinutes(u"0:1.5"));
}

TEST(TimeToMinutes, WithoutAColonIsASubscriptError)
{
    for (const char16_t *text : {u"", u"12", u"abc", u" "})
        EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([&] { TimeToMinutes(QStringView(text)); }));
}

TEST(TimeToMinutes, BeyondThirtyTwoBitsIsOverflow)
{
    EXPECT_EQ(2147483647, TimeToMinutes(u"35791394:07"));
    EXPECT_EQ(Error::Overflow, errorOf([] { TimeToMinutes(u"35791394:08"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { TimeToMinutes(u"99999999:00"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { TimeToMinutes(QString(1'000, u'9') + QStringLiteral(":00")); }));
}

TEST(MinutesToTime, WritesAtLeastTwoDigitsEach)
{
    EXPECT_EQ(QStringLiteral("00:00"), timeOf(0));
    EXPECT_EQ(QStringLiteral("00:05"), timeOf(5));
    EXPECT_EQ(QStringLiteral("13:00"), timeOf(780));
    EXPECT_EQ(QStringLiteral("100:00"), timeOf(6000));
    EXPECT_EQ(QStringLiteral("35791394:07"), timeOf(2147483647));
    EXPECT_EQ(QStringLiteral("13:00"), timeOf(TimeToMinutes(u"12:60")));
}

TEST(MinutesToTime, TakesTheFloorOfNegativeMinutes)
{
    EXPECT_EQ(QStringLiteral("-01:30"), timeOf(-30));
    EXPECT_EQ(QStringLiteral("-35791395:52"), timeOf(std::numeric_limits<int>::min()));
    EXPECT_EQ(-30, TimeToMinutes(timeOf(-30)));
}

// Pricing

TEST(TimeToMoney, PricesTheWorkedExamples)
{
    const Money hundred = money(u"100.00");
    EXPECT_EQ(Money(), TimeToMoney(u"00:00", hundred));
    EXPECT_EQ(money(u"150.00"), TimeToMoney(u"01:30", hundred));
    EXPECT_EQ(money(u"16.67"), TimeToMoney(u"00:10", hundred));
    EXPECT_EQ(money(u"4.73"), TimeToMoney(u"00:06", money(u"47.25")));
}

TEST(TimeToMoney, AgreesWithExactArithmetic)
{
    // Pence times minutes over sixty, in integers, half rounded away from zero.
    for (std::int64_t pence = 1; pence < 20'000; pence += 7) {
        for (int minutes = 0; minutes < 600; minutes += 11) {
            const std::int64_t product = pence * minutes;
            const std::int64_t rounded = product / 60 + (product % 60 >= 30 ? 1 : 0);
            EXPECT_EQ(
                units(rounded * Money::PerPenny), TimeToMoney(MinutesToTime(minutes), units(pence * Money::PerPenny)))
                << minutes << " minutes at " << pence << " pence";
        }
    }
}

TEST(TimeToMoney, RaisesTheErrorsOfItsSteps)
{
    EXPECT_EQ(Error::SubscriptOutOfRange, errorOf([] { TimeToMoney(u"", units(1)); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { TimeToMoney(u"35791394:00", units(Largest)); }));
}

TEST(PercentageCalculate, KeepsFourDecimals)
{
    EXPECT_EQ(money(u"8.335"), PercentageCalculate(money(u"16.67"), u"50"));
    EXPECT_EQ(money(u"8.335"), PercentageCalculate(money(u"16.67"), u"50.00"));
    EXPECT_EQ(money(u"216.048"), PercentageCalculate(money(u"1234.56"), u"17.50"));
    EXPECT_EQ(money(u"-216.048"), PercentageCalculate(money(u"-1234.56"), u"17.50"));
    EXPECT_EQ(money(u"0.0018"), PercentageCalculate(money(u"0.01"), u"17.6")); // 0.00176
}

TEST(PercentageCalculate, OfATextWithoutANumberIsNothing)
{
    EXPECT_EQ(Money(), PercentageCalculate(money(u"1234.56"), u""));
    EXPECT_EQ(Money(), PercentageCalculate(units(Largest), u"none"));
    EXPECT_EQ(Money(), PercentageCalculate(units(Smallest), u""));
}

TEST(PercentageCalculate, OutOfRangeIsOverflow)
{
    EXPECT_EQ(Error::Overflow, errorOf([] { PercentageCalculate(units(Largest), u"101"); }));
    EXPECT_EQ(Error::Overflow, errorOf([] { PercentageCalculate(units(1), QString(400, u'9')); }));
    // Zero times a number beyond the range of a double is not a number.
    EXPECT_EQ(Error::Overflow, errorOf([] { PercentageCalculate(Money(), QString(400, u'9')); }));
}

// Locales

TEST(Arithmetic, DoesNotDependOnTheLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where it is installed

    EXPECT_EQ(units(12'345'000), money(u"1,234.50"));
    EXPECT_EQ(1234.5, TextValue(u"1234.5"));
    EXPECT_EQ(1.2345678901234567, TextValue(u"1.2345678901234567"));
    EXPECT_EQ(QStringLiteral("1234.5"), MoneyToText(units(12'345'000)));
    EXPECT_EQ(money(u"4.73"), RoundMoney2(4.725));
    EXPECT_EQ(QStringLiteral("35791394:07"), timeOf(2147483647));

    std::setlocale(LC_ALL, "C");
    QLocale::setDefault(before);
}
