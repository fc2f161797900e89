#include "editors/mdCountComms.h"
#include "formdata/clsZR3FeeEarner.h"
#include "formdata/clsZR3Form.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr Qt::KeyboardModifiers Nothing = Qt::NoModifier;

/// A claim with one fee earner, whose counts are 3, 5 and 7.
struct Counted {
    clsZR3Form form;
    std::shared_ptr<clsZR3FeeEarner> person = form.AddFeeEarner();

    Counted()
    {
        person->Calls = 3;
        person->LettersIn = 5;
        person->LettersOut = 7;
    }
    std::vector<int> counts() const { return {person->Calls(), person->LettersIn(), person->LettersOut()}; }
};

int byOf(Qt::KeyboardModifiers shift)
{
    return mdCommsStep(shift).by;
}

} // namespace

TEST(CountComms, EachKeyCountsOneKindAndStandsForOneColumn)
{
    struct Row {
        int key;
        int column;
        std::vector<int> counts;
        const char *field;
    };
    const Row rows[] = {
        {Qt::Key_C, 3, {4, 5, 7}, "txtCalls"},
        {Qt::Key_I, 4, {3, 6, 7}, "txtLettersIn"},
        {Qt::Key_O, 5, {3, 5, 8}, "txtLettersOut"},
    };
    for (const Row &row : rows) {
        const clsCommsCount *count = mdCommsCountOfKey(row.key);
        ASSERT_TRUE(count) << row.field;
        EXPECT_EQ(count, mdCommsCountAtColumn(row.column)) << row.field;
        EXPECT_STREQ(row.field, count->field);
        const Counted claim;
        mdCountComms(*claim.person, *count, +1);
        EXPECT_EQ(row.counts, claim.counts()) << row.field;
    }
}

TEST(CountComms, NoOtherKeyAndNoOtherColumnCounts)
{
    for (const int key : {int(Qt::Key_A), int(Qt::Key_L), int(Qt::Key_Return), int(Qt::Key_0), int(Qt::Key_Shift)})
        EXPECT_EQ(nullptr, mdCommsCountOfKey(key)) << key;
    for (const int column : {-1, 0, 1, 2, 6})
        EXPECT_EQ(nullptr, mdCommsCountAtColumn(column)) << column;
}

TEST(CountComms, OnlyShiftAloneCountsDown)
{
    EXPECT_EQ(-1, byOf(Qt::ShiftModifier));
    EXPECT_EQ(+1, byOf(Nothing));
    EXPECT_EQ(+1, byOf(Qt::ControlModifier));
    EXPECT_EQ(+1, byOf(Qt::AltModifier));
    EXPECT_EQ(+1, byOf(Qt::ShiftModifier | Qt::ControlModifier));
    EXPECT_EQ(+1, byOf(Qt::ShiftModifier | Qt::AltModifier));
    EXPECT_EQ(+1, byOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier));
    // Modifiers added by the keyboard, such as the keypad's, are ignored.
    EXPECT_EQ(-1, byOf(Qt::ShiftModifier | Qt::KeypadModifier));
    EXPECT_EQ(-1, byOf(Qt::ShiftModifier | Qt::GroupSwitchModifier));
}

TEST(CountComms, UpAndDownSoundDifferently)
{
    EXPECT_STREQ("Sounds/Blip.wav", mdCommsStep(Nothing).sound);
    EXPECT_STREQ("Sounds/Blip Low.wav", mdCommsStep(Qt::ShiftModifier).sound);
    EXPECT_STREQ("Sounds/Blip.wav", mdCommsStep(Qt::ShiftModifier | Qt::ControlModifier).sound);
}

TEST(CountComms, ACountStopsAtNothing)
{
    const Counted claim;
    const clsCommsCount &calls = *mdCommsCountOfKey(Qt::Key_C);
    claim.person->Calls = 1;
    for (int i = 0; i < 3; ++i) {
        mdCountComms(*claim.person, calls, -1);
        EXPECT_EQ(0, claim.person->Calls());
    }
    mdCountComms(*claim.person, calls, +1);
    EXPECT_EQ(1, claim.person->Calls());
}

TEST(CountComms, ACountBelowNothingComesBackToIt)
{
    // Content that a hand-edited file may hold.
    const Counted claim;
    claim.person->LettersIn = -5;
    mdCountComms(*claim.person, *mdCommsCountOfKey(Qt::Key_I), +1);
    EXPECT_EQ(0, claim.person->LettersIn());
    claim.person->LettersIn = std::numeric_limits<int>::min();
    mdCountComms(*claim.person, *mdCommsCountOfKey(Qt::Key_I), -1);
    EXPECT_EQ(0, claim.person->LettersIn());
}

TEST(CountComms, ACountHoldsAtItsLargest)
{
    const Counted claim;
    claim.person->Calls = std::numeric_limits<int>::max() - 1;
    const clsCommsCount &calls = *mdCommsCountOfKey(Qt::Key_C);
    mdCountComms(*claim.person, calls, +1);
    EXPECT_EQ(std::numeric_limits<int>::max(), claim.person->Calls());
    mdCountComms(*claim.person, calls, +1);
    EXPECT_EQ(std::numeric_limits<int>::max(), claim.person->Calls());
    mdCountComms(*claim.person, calls, -1);
    EXPECT_EQ(std::numeric_limits<int>::max() - 1, claim.person->Calls());
}
