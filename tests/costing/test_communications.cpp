// Letters and calls: the lines of the bill and their prices.

#include "costing/mdGetCommsInfo.h"
#include "tests/formdata/clsClaimTest.h"

#include <QTemporaryFile>

namespace {

using Error = clsRunTimeError;
using Kind = clsCommsKind;

constexpr Kind AllKinds[] = {Kind::Calls, Kind::LettersIn, Kind::LettersOut};

class Communications : public clsClaimTest {
protected:
    /// A group with one fee earner who has these counts.
    clsTestClaim::Group addGroupWith(int calls, int lettersIn, int lettersOut)
    {
        const auto group = claim.addGroup();
        const auto feeEarner = claim.addFeeEarner(group);
        feeEarner->Calls = calls;
        feeEarner->LettersIn = lettersIn;
        feeEarner->LettersOut = lettersOut;
        return group;
    }
};

} // namespace

TEST_F(Communications, ALineIsTheNthGroupByOrderWithBothACountAndARate)
{
    const auto none = addGroupWith(0, 1, 1);
    const auto unpaid = addGroupWith(5, 1, 1);
    unpaid->CallsRate = "0.00"_q;
    const auto a = addGroupWith(1, 1, 1);
    const auto b = addGroupWith(2, 1, 1);
    EXPECT_EQ(a, CommsGroupAtLine(form, 1, Kind::Calls));
    EXPECT_EQ(b, CommsGroupAtLine(form, 2, Kind::Calls));
    EXPECT_FALSE(CommsGroupAtLine(form, 3, Kind::Calls));
    EXPECT_EQ(none, CommsGroupAtLine(form, 1, Kind::LettersIn));
    EXPECT_EQ(unpaid, CommsGroupAtLine(form, 2, Kind::LettersOut));
    // The order on the screen counts, not the position in the file.
    a->OrderID = 4;
    b->OrderID = 3;
    EXPECT_EQ(b, CommsGroupAtLine(form, 1, Kind::Calls));
    EXPECT_EQ(a, CommsGroupAtLine(form, 2, Kind::Calls));
}

TEST_F(Communications, ARateThatIsNoNumberIsNoneForTheLines)
{
    const auto group = addGroupWith(1, 1, 1);
    for (const char *rate : {"", "x", "-1", "0"}) {
        group->CallsRate = QString::fromLatin1(rate);
        EXPECT_FALSE(CommsGroupAtLine(form, 1, Kind::Calls)) << rate;
    }
    group->CallsRate = "0.0001"_q;
    EXPECT_TRUE(CommsGroupAtLine(form, 1, Kind::Calls));
}

TEST_F(Communications, ARateThatOnlyBeginsWithANumberTakesTheLineAndCanNotBePriced)
{
    addGroupWith(1, 1, 1)->CallsRate = "4.05 each"_q;
    EXPECT_TRUE(CommsGroupAtLine(form, 1, Kind::Calls));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CommsRateAtLine(form, 1, Kind::Calls); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CommsBasicAtLine(form, 1, Kind::Calls); }));
    EXPECT_EQ(Error::TypeMismatch, errorOf([&] { CommsTotal(form); }));
}

TEST_F(Communications, EachKindHasItsOwnRateCountAndEnhancement)
{
    addGroupWith(3, 20, 100);
    const auto ten = claim.addEnhancement("10");
    // Calls 3 at 4.00, letters in 20 at 2.00, letters out 100 at 5.00.
    const char *rates[] = {"4", "2", "5"};
    const char *counts[] = {"3", "20", "100"};
    const char *basics[] = {"12", "40", "500"};
    const char *uplifts[] = {"1.2", "4", "50"};
    for (const Kind enhanced : AllKinds) {
        form.Communications.EnhanceCalls = enhanced == Kind::Calls;
        form.Communications.EnhanceLettersIn = enhanced == Kind::LettersIn;
        form.Communications.EnhanceLettersOut = enhanced == Kind::LettersOut;
        form.Communications.CallsEnhancementUniqueID = enhanced == Kind::Calls ? ten->UniqueID() : QString();
        form.Communications.LettersInEnhancementUniqueID = enhanced == Kind::LettersIn ? ten->UniqueID() : QString();
        form.Communications.LettersOutEnhancementUniqueID = enhanced == Kind::LettersOut ? ten->UniqueID() : QString();
        for (const Kind kind : AllKinds) {
            const int k = int(kind);
            EXPECT_EQ(QString::fromLatin1(rates[k]), textOf(CommsRateAtLine(form, 1, kind)));
            EXPECT_EQ(QString::fromLatin1(counts[k]), CommsCountAtLine(form, 1, kind));
            EXPECT_EQ(QString::fromLatin1(basics[k]), textOf(CommsBasicAtLine(form, 1, kind)));
            EXPECT_EQ(QString::fromLatin1(kind == enhanced ? uplifts[k] : "0"),
                textOf(CommsEnhancementAtLine(form, 1, kind)));
        }
    }
}

TEST_F(Communications, TheKindsHaveTheirNumbers)
{
    EXPECT_EQ(0, int(Kind::Calls));
    EXPECT_EQ(1, int(Kind::LettersIn));
    EXPECT_EQ(2, int(Kind::LettersOut));
}

TEST_F(Communications, PricesCallsWithoutAnEnhancement)
{
    addGroupWith(3, 0, 0)->CallsRate = "4.05"_q;
    EXPECT_EQ("12.15"_q, textOf(CommsBasicAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("12.15"_q, textOf(CommsClaimAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("12.15"_q, textOf(CommsTotal(form)));
}

TEST_F(Communications, TakesTwoUpliftsAndAddsThem)
{
    // Half of 1.25 is 0.625, so 0.63; a tenth is 0.125 and stays; together 0.755, and 2.005 with the basic 1.25.
    const auto group = addGroupWith(1, 0, 0);
    group->CallsRate = "1.25"_q;
    group->EnhanceComms = true;
    group->EnhancementRate = "50"_q;
    form.Communications.EnhanceCalls = true;
    form.Communications.CallsEnhancementUniqueID = claim.addEnhancement("10")->UniqueID();
    EXPECT_EQ("1.25"_q, textOf(CommsBasicAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("0.63"_q, textOf(CommsGroupEnhancement(form, 1, Kind::Calls)));
    EXPECT_EQ("0.755"_q, textOf(CommsEnhancementAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("2.005"_q, textOf(CommsClaimAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("2.01"_q, textOf(CommsTotal(form)));
}

TEST_F(Communications, TheGroupsUpliftNeedsItsOwnFlagOnly)
{
    const auto group = addGroupWith(1, 0, 0);
    group->EnhancementRate = "50"_q;
    group->Enhance = true;
    EXPECT_EQ("0"_q, textOf(CommsGroupEnhancement(form, 1, Kind::Calls)));
    group->Enhance = false;
    group->EnhanceComms = true;
    EXPECT_EQ("2"_q, textOf(CommsGroupEnhancement(form, 1, Kind::Calls)));
}

TEST_F(Communications, AnEnhancementThatIsNotThereOrBlankLiftsNothing)
{
    addGroupWith(1, 0, 0);
    form.Communications.EnhanceCalls = true;
    form.Communications.CallsEnhancementUniqueID = "ID99"_q;
    EXPECT_EQ("0"_q, textOf(CommsEnhancementAtLine(form, 1, Kind::Calls)));
    form.Communications.CallsEnhancementUniqueID = claim.addEnhancement("")->UniqueID();
    EXPECT_EQ("0"_q, textOf(CommsEnhancementAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("4"_q, textOf(CommsClaimAtLine(form, 1, Kind::Calls)));
}

TEST_F(Communications, TheShownRateIsToThePennyAndThePriceTakesTheWhole)
{
    // 100 letters at 1.125 are 112.50; at the shown 1.13 they would be 113.00.
    addGroupWith(0, 0, 100)->LettersOutRate = "1.125"_q;
    EXPECT_EQ("1.13"_q, textOf(CommsRateAtLine(form, 1, Kind::LettersOut)));
    EXPECT_EQ("112.5"_q, textOf(CommsBasicAtLine(form, 1, Kind::LettersOut)));
    // 3 at 1.125 is 3.375: half a penny is rounded away from zero.
    clsTestClaim other;
    const auto group = other.addGroup();
    group->LettersOutRate = "1.125"_q;
    other.addFeeEarner(group)->LettersOut = 3;
    EXPECT_EQ("3.38"_q, textOf(CommsBasicAtLine(other.form, 1, Kind::LettersOut)));
}

TEST_F(Communications, AnEmptyLineHasEmptyTextAndNoMoney)
{
    addGroupWith(1, 1, 1);
    for (const Kind kind : AllKinds) {
        EXPECT_FALSE(CommsGroupAtLine(form, 2, kind));
        EXPECT_EQ(QString(), CommsCountAtLine(form, 2, kind));
        EXPECT_EQ(Money(), CommsRateAtLine(form, 2, kind));
        EXPECT_EQ(Money(), CommsBasicAtLine(form, 2, kind));
        EXPECT_EQ(Money(), CommsGroupEnhancement(form, 2, kind));
        EXPECT_EQ(Money(), CommsEnhancementAtLine(form, 2, kind));
        EXPECT_EQ(Money(), CommsClaimAtLine(form, 2, kind));
    }
}

TEST_F(Communications, AThirdGroupIsNotBilled)
{
    addGroupWith(1, 0, 0);
    addGroupWith(10, 0, 0);
    addGroupWith(100, 0, 0);
    EXPECT_EQ("44"_q, textOf(CommsTotal(form))); // 11 calls at 4.00
}

TEST_F(Communications, TheTotalTakesAllKindsAndBothLines)
{
    addGroupWith(1, 1, 1); // 4 + 2 + 5
    addGroupWith(2, 2, 2); // 8 + 4 + 10
    EXPECT_EQ("33"_q, textOf(CommsTotal(form)));
}

TEST_F(Communications, TheTotalIsRoundedOnceAtItsEnd)
{
    // Two lines of 0.335 uplift and 3.35 basic each: 3.685 and 3.685 are 7.37; rounded separately they would be 7.38.
    for (int i = 0; i < 2; ++i)
        addGroupWith(1, 0, 0)->CallsRate = "3.35"_q;
    form.Communications.EnhanceCalls = true;
    form.Communications.CallsEnhancementUniqueID = claim.addEnhancement("10")->UniqueID();
    EXPECT_EQ("3.685"_q, textOf(CommsClaimAtLine(form, 1, Kind::Calls)));
    EXPECT_EQ("7.37"_q, textOf(CommsTotal(form)));
}

TEST_F(Communications, CountsBeyondThirtyTwoBitsAreTheOverflowError)
{
    const auto group = addGroupWith(2'000'000'000, 0, 0);
    claim.addFeeEarner(group)->Calls = 2'000'000'000;
    EXPECT_EQ(Error::Overflow, errorOf([&] { CommsGroupAtLine(form, 1, Kind::Calls); }));
    EXPECT_EQ(Error::Overflow, errorOf([&] { CommsTotal(form); }));
    // The count is read even if there is no rate.
    group->CallsRate = "0"_q;
    EXPECT_EQ(Error::Overflow, errorOf([&] { CommsGroupAtLine(form, 1, Kind::Calls); }));
}

TEST_F(Communications, AGapInTheOrderOfTheGroupsIsTheObjectError)
{
    addGroupWith(1, 1, 1);
    addGroupWith(1, 1, 1)->OrderID = 3;
    EXPECT_TRUE(CommsGroupAtLine(form, 1, Kind::Calls)); // found before the gap
    EXPECT_EQ(Error::ObjectNotSet, errorOf([&] { CommsGroupAtLine(form, 2, Kind::Calls); }));
}

TEST_F(Communications, ANegativeCountTakesNoLine)
{
    addGroupWith(-3, 0, 0);
    EXPECT_FALSE(CommsGroupAtLine(form, 1, Kind::Calls));
    EXPECT_EQ(Money(), CommsTotal(form));
}

TEST_F(Communications, AClaimOfManyGroupsAndFeeEarnersComesToItsTotal)
{
    // If each group searched all fee earners, this would take nearly an hour.
    constexpr int Count = 45'000;
    QByteArray groups;
    QByteArray feeEarners;
    for (int n = 1; n <= Count; ++n) {
        const QByteArray number = QByteArray::number(n);
        const QByteArray rate = n == Count ? "4.05" : "0.00";
        groups += "<feeearnergroup><uniqueid>G" + number + "</uniqueid><orderid>" + number + "</orderid><callsrate>"
            + rate + "</callsrate></feeearnergroup>";
        feeEarners += "<feeearner><orderid>" + number + "</orderid><groupuniqueid>G" + number
            + "</groupuniqueid><calls>3</calls></feeearner>";
    }
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("<vzrform><feeearnergroups>" + groups + "</feeearnergroups><feeearners>" + feeEarners
        + "</feeearners></vzrform>");
    file.close();
    ASSERT_TRUE(form.LoadXML(file.fileName()));
    EXPECT_EQ("12.15"_q, textOf(CommsTotal(form)));
    EXPECT_EQ(form.FeeEarnerGroup(Count), CommsGroupAtLine(form, 1, Kind::Calls));
}
