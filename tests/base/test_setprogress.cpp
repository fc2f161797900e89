#include "base/mdSetProgress.h"
#include "tests/support/clsScriptedUserInterface.h"

#include <gtest/gtest.h>

namespace {

/// One progress report, and what it draws in the bar.
struct clsReport {
    int value;
    int maximum;
    bool inverted;
    int drawn; ///< NotDrawn if the bar is not updated
};

constexpr int NotDrawn = -1;

class SetProgress : public testing::TestWithParam<clsReport> { };

} // namespace

TEST_P(SetProgress, DrawsEveryStepOfAShortRunAndFewOfALongOne)
{
    clsScriptedUserInterface ui;
    const clsUserInterfaceScope scope(ui);
    const clsReport &report = GetParam();
    mdSetProgress(report.value, report.maximum, QStringLiteral("Loading, please wait"), report.inverted);
    if (report.drawn == NotDrawn) {
        EXPECT_TRUE(ui.progress.empty());
        return;
    }
    ASSERT_EQ(1U, ui.progress.size());
    EXPECT_EQ(report.drawn, ui.progress[0].value);
    EXPECT_EQ(report.maximum, ui.progress[0].maximum);
    EXPECT_EQ(QStringLiteral("Loading, please wait"), ui.progress[0].text);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Reports, SetProgress, testing::Values(
    clsReport {  0,  700, false,        0},
    clsReport {  1,  700, false,        1},
    clsReport {  2,  700, false, NotDrawn},
    clsReport {300,  700, false, NotDrawn},
    clsReport {599,  700, false, NotDrawn},
    clsReport {600,  700, false,      600},
    clsReport {601,  700, false, NotDrawn},
    clsReport {700,  700, false, NotDrawn},
    clsReport {1200, 1300, false,    1200},
    // A run of 600 is short.
    clsReport {  2,  600, false,        2},
    clsReport {599,  600, false,      599},
    clsReport {  2,  601, false, NotDrawn},
    clsReport {600,  601, false,      600},
    // The remaining steps decide, not those done.
    clsReport {  0,  700, true,  NotDrawn},
    clsReport {100,  700, true,       600},
    clsReport {600,  700, true,  NotDrawn},
    clsReport {699,  700, true,         1},
    clsReport {700,  700, true,         0},
    clsReport { 10,   50, true,        40}));
// clang-format on

TEST(ClearProgress, EmptiesTheBar)
{
    clsScriptedUserInterface ui;
    const clsUserInterfaceScope scope(ui);
    mdClearProgress();
    EXPECT_EQ(1, ui.progressCleared);
    EXPECT_TRUE(ui.progress.empty());
}
