#include "base/mdTypedText.h"

#include "base/mdClock.h"
#include "base/mdNumberText.h"
#include "tests/support/mdExpectError.h"

#include <random>
#include <string>

namespace {

constexpr char NoFit[] = "(does not fit)";

std::string shown(const std::optional<QString> &result)
{
    return result ? result->toStdString() : NoFit;
}

std::string decimal(const char *text)
{
    return shown(TypedDecimal(QString::fromUtf8(text)));
}

std::string integer(const char *text)
{
    return shown(TypedInteger(QString::fromUtf8(text)));
}

std::string time(const char *text)
{
    return shown(TypedTime(QString::fromUtf8(text)));
}

/// The shown form of a typed date, in a process whose last year is `lastYear`.
std::string date(const char *text, int lastYear = 2023)
{
    return shown(TypedDate(QString::fromUtf8(text), lastYear));
}

/// The remembered year after a date was typed.
int yearAfter(const char *text, int lastYear)
{
    TypedDate(QString::fromUtf8(text), lastYear);
    return lastYear;
}

class TypedDates : public testing::Test {
protected:
    TypedDates()
    {
        SetClock([] { return QDateTime(QDate(2026, 11, 21), QTime(14, 3)); });
    }
    ~TypedDates() override { SetClock({}); }
};

} // namespace

TEST(IsNumeric, TakesWhatCountsAsANumberHere)
{
    for (const char *text : {"0", "12", "1,200", "1,2,,3", "-5", "+5", " 12.5 ", "1.", ".5", "\t1\r\n",
             "99999999999999999999999999", "-99999999999999999999999999"})
        EXPECT_TRUE(IsNumeric(QString::fromUtf8(text))) << text;
    for (const char *text : {"", " ", ".", ",", "-", "1.2.3", "1 2", "- 5", "5-", "abc", "1e5", "&H1F", "(5)", "£5",
             "१", "1:30", "0x10", "nan", "inf"})
        EXPECT_FALSE(IsNumeric(QString::fromUtf8(text))) << text;
}

// Dates

TEST_F(TypedDates, AreWrittenInOneForm)
{
    EXPECT_EQ("01/02/24", date("1.2.24"));
    EXPECT_EQ("01/02/24", date("1 2 2024"));
    EXPECT_EQ("01/02/24", date("1-2-24"));
    EXPECT_EQ("01/02/24", date("1/2.24"));
    EXPECT_EQ("21/11/26", date("21 November 2026"));
    EXPECT_EQ("01/02/24", date("2024-02-01"));
}

TEST_F(TypedDates, AnEmptyOneFits)
{
    EXPECT_EQ("", date(""));
    EXPECT_EQ(0, yearAfter("", 0)) << "no use of the memory";
}

TEST_F(TypedDates, WithoutAYearFallIntoTheYearLastUsed)
{
    EXPECT_EQ("01/02/23", date("1-2", 2023));
    EXPECT_EQ("01/02/99", date("1.2", 1999));
    EXPECT_EQ("01/01/23", date("1 Jan", 2023));
}

TEST_F(TypedDates, TheFirstFallsIntoThePresentYear)
{
    int lastYear = 0;
    EXPECT_EQ("01/02/26", shown(TypedDate(QStringLiteral("1/2"), lastYear)));
    EXPECT_EQ(2026, lastYear);
}

TEST_F(TypedDates, EvenATextThatIsNoDateStartsTheMemory)
{
    EXPECT_EQ(2026, yearAfter("abc", 0));
    EXPECT_EQ(2023, yearAfter("abc", 2023));
    EXPECT_EQ(2023, yearAfter("31/02/24", 2023));
}

TEST_F(TypedDates, AYearThatIsTypedIsRemembered)
{
    EXPECT_EQ(2024, yearAfter("1/2/24", 2023));
    EXPECT_EQ(1979, yearAfter("14/8/1979", 2023));
    EXPECT_EQ(1995, yearAfter("1/2/1895", 2023)) << "the year that the two digits stand for";
}

TEST_F(TypedDates, TheYearOfTheNoDateValueIsNot)
{
    EXPECT_EQ("31/12/29", date("31/12/29"));
    EXPECT_EQ(2023, yearAfter("31/12/29", 2023));
    EXPECT_EQ(2023, yearAfter("1/2/2029", 2023));
}

TEST_F(TypedDates, OfNoCalendarDoNotFit)
{
    for (const char *text : {"31/02/24", "29/2/23", "1/13/24", "abc", "1", "1/2/3/4", " 1/2/24", "1/2/24 ", "1  2", "/",
             "12/2024", "2024/12"})
        EXPECT_EQ(NoFit, date(text)) << text;
}

TEST_F(TypedDates, TheLeapDayNeedsALeapYearInTheMemoryToo)
{
    EXPECT_EQ("29/02/24", date("29/2", 2024));
    EXPECT_EQ(NoFit, date("29/2", 2023));
}

// Amounts and rates

TEST(TypedDecimal, HasTwoDecimalsAndNoGrouping)
{
    EXPECT_EQ("12.50", decimal("12.5%"));
    EXPECT_EQ("12.00", decimal("£12"));
    EXPECT_EQ("0.00", decimal(""));
    EXPECT_EQ("0.00", decimal("£"));
    EXPECT_EQ("1200.00", decimal("1200"));
    EXPECT_EQ("-5.00", decimal("-5"));
    EXPECT_EQ("0.50", decimal(" .5 "));
}

TEST(TypedDecimal, IsReadUpToItsFirstComma)
{
    EXPECT_EQ("1.00", decimal("£1,200"));
    EXPECT_EQ("1.00", decimal("1,200.50"));
}

TEST(TypedDecimal, RoundsHalfAPennyAwayFromZero)
{
    EXPECT_EQ("1.01", decimal("1.005"));
    EXPECT_EQ("-1.01", decimal("-1.005"));
    EXPECT_EQ("2.67", decimal("2.674999"));
    EXPECT_EQ("0.00", decimal("-0.001")) << "never a negative nothing";
}

TEST(TypedDecimal, OfNoNumberOrNoAmountDoesNotFit)
{
    for (const char *text : {"abc", "1.2.3", "12.5x", " ", "1 200", "--5", "922337203685478",
             "99999999999999999999999999999999999999999999"})
        EXPECT_EQ(NoFit, decimal(text)) << text;
    EXPECT_EQ("99999999999.00", decimal("99999999999"));
}

// Counts

TEST(TypedInteger, LosesItsBlanksAndNothingElse)
{
    EXPECT_EQ("1000", integer("1 000"));
    EXPECT_EQ("0", integer(""));
    EXPECT_EQ("0", integer("   "));
    EXPECT_EQ("1.5", integer("1.5"));
    EXPECT_EQ("007", integer("007"));
    EXPECT_EQ("1,000", integer("1,000"));
    EXPECT_EQ("2147483647", integer("2147483647"));
}

TEST(TypedInteger, OfNoNumberOrBeyondACountDoesNotFit)
{
    for (const char *text : {"abc", "1x", "1.2.3", "2147483648", "99999999999"})
        EXPECT_EQ(NoFit, integer(text)) << text;
}

// Durations

TEST(TypedTime, WithAColonIsHoursAndMinutes)
{
    EXPECT_EQ("01:30", time("1:30"));
    EXPECT_EQ("01:05", time("1:5"));
    EXPECT_EQ("00:30", time(":30"));
    EXPECT_EQ("02:00", time("2:"));
    EXPECT_EQ("02:15", time("1:75"));
    EXPECT_EQ("100:00", time("100:00"));
}

TEST(TypedTime, WithAPointIsHoursWithAFraction)
{
    EXPECT_EQ("00:15", time("0.25"));
    EXPECT_EQ("01:30", time("1.5"));
    EXPECT_EQ("00:15", time(".25"));
    EXPECT_EQ("01:00", time("1."));
    EXPECT_EQ("00:20", time("0.33333"));
    EXPECT_EQ("02:00", time("1.999")) << "59.94 minutes are rounded to 60";
}

TEST(TypedTime, WithNeitherIsMinutes)
{
    EXPECT_EQ("01:30", time("90"));
    EXPECT_EQ("00:00", time("0"));
    EXPECT_EQ("13:00", time("780"));
    EXPECT_EQ("16:40", time("1,000"));
}

TEST(TypedTime, OfNoNumberDoesNotFit)
{
    for (const char *text :
        {"", " ", ":", ".", "abc", "1:2:3", "1.2.3", "1:2.5", "1.5:30", "1: 30", "1h", "-.5", "+:5"})
        EXPECT_EQ(NoFit, time(text)) << text;
}

TEST(TypedTime, BeyondItsRangeDoesNotFit)
{
    EXPECT_EQ("35791394:07", time("2147483647"));
    for (const char *text : {"99999999999", "2147483648", "99999999:00", "35791394:08", "99999999999.5", "-2147483648"})
        EXPECT_EQ(NoFit, time(text)) << text;
}

TEST(TimeAfterOneMinute, RollsIntoTheHours)
{
    EXPECT_EQ(QStringLiteral("00:01"), TimeAfterOneMinute(QStringLiteral("00:00")));
    EXPECT_EQ(QStringLiteral("01:00"), TimeAfterOneMinute(QStringLiteral("00:59")));
    EXPECT_EQ(QStringLiteral("100:00"), TimeAfterOneMinute(QStringLiteral("99:59")));
}

TEST(TimeAfterOneMinute, OfNoTimeIsAnError)
{
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([] { TimeAfterOneMinute(QString()); }));
    EXPECT_EQ(clsRunTimeError::SubscriptOutOfRange, errorOf([] { TimeAfterOneMinute(QStringLiteral("90")); }));
    EXPECT_EQ(clsRunTimeError::Overflow, errorOf([] { TimeAfterOneMinute(QStringLiteral("35791394:07")); }));
}

// All of them

TEST(TypedTexts, AResultIsGivenBackUnchangedAndNoTextRaisesAnError)
{
    const QString characters = QStringLiteral("0123456789/:.,- %+abJan£");
    std::mt19937 random(1);
    std::uniform_int_distribution<qsizetype> pick(0, characters.size() - 1);
    std::uniform_int_distribution<int> length(0, 12);
    int lastYear = 2023;
    for (int round = 0; round < 20'000; ++round) {
        QString text;
        for (int i = length(random); i > 0; --i)
            text += characters[pick(random)];
        if (const auto result = TypedDate(text, lastYear)) {
            ASSERT_EQ(result, TypedDate(*result, lastYear)) << text.toStdString();
        }
        for (const auto typed : {TypedDecimal, TypedInteger, TypedTime})
            if (const auto result = typed(text)) {
                ASSERT_EQ(result, typed(*result)) << text.toStdString();
            }
    }
}
