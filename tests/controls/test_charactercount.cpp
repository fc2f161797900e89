// The count beside a text box: number, colour and text.

#include "controls/clsCharacterCount.h"
#include "controls/mdTheme.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

TEST(CharacterCount, ShowsWhatIsLeftAndThenTheExcess)
{
    struct Row {
        int allowance;
        int length;
        bool overRun;
        const char *text;
        std::optional<QColor> colour;
        const char *words;
    };
    // clang-format off
    const Row rows[] = {
        {17,   8, false, "9",    Theme::Green,  "9 of 17 left"},
        {10,   4, false, "6",    Theme::Green,  "6 of 10 left"},
        {10,   5, false, "5",    {},            "5 of 10 left"},
        {10,   6, false, "4",    Theme::Orange, "4 of 10 left"},
        {10,   9, false, "1",    Theme::Orange, "1 of 10 left"},
        {10,  10, false, "0",    Theme::Red,    "0 of 10 left"},
        {10,  13, false, "3",    Theme::Red,    "3 over the 10 that the printed box holds"},
        { 7,   9, false, "2",    Theme::Red,    "2 over the 7 that the printed box holds"},
        {10,   0, true,  "(10)", Theme::Green,  "10 of 10 left"},
        {10,   5, true,  "(5)",  {},            "5 of 10 left"},
        {10,   6, true,  "(4)",  Theme::Orange, "4 of 10 left"},
        {10,  10, true,  "(0)",  Theme::Blue,   "0 of 10 left"},
        {100, 112, true, "(12)", Theme::Blue,   "12 over 100; the rest goes to a continuation sheet"},
    };
    // clang-format on
    for (const Row &row : rows) {
        const clsCharacterCount count(row.allowance, row.length, row.overRun);
        EXPECT_EQ(QString::fromUtf8(row.text), count.text) << row.words;
        EXPECT_TRUE(row.colour == count.colour) << row.words;
        EXPECT_EQ(QString::fromUtf8(row.words), count.words);
    }
}
