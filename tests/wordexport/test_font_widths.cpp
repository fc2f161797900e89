#include "wordexport/document/mdFontWidths.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

// The widths published by the typeface's maker, in thousandths of an em.
struct Row {
    char32_t character;
    int regular;
    int bold;
};

constexpr Row Published[] = {
    {U' ', 278, 278},
    {U'!', 278, 333},
    {U'%', 889, 889},
    {U'-', 333, 333},
    {U'.', 278, 278},
    {U'/', 278, 278},
    {U'0', 556, 556},
    {U'9', 556, 556},
    {U'@', 1015, 975},
    {U'A', 667, 722},
    {U'W', 944, 944},
    {U'a', 556, 556},
    {U'b', 556, 611},
    {U'i', 222, 278},
    {U'm', 833, 889},
    {U'\u00A3', 556, 556},
    {U'\u00E9', 556, 556},
    {U'\u2013', 556, 556},
    {U'\u2014', 1000, 1000},
    {U'\u20AC', 556, 556},
};

int thousandths(int width)
{
    return (width * 1000 + FontWidths::Units / 2) / FontWidths::Units;
}

TEST(FontWidths, AreThoseOfTheTypeface)
{
    for (const Row &row : Published) {
        EXPECT_EQ(thousandths(FontWidths::of(row.character, false)), row.regular) << unsigned(row.character);
        EXPECT_EQ(thousandths(FontWidths::of(row.character, true)), row.bold) << unsigned(row.character);
    }
}

TEST(FontWidths, ACharacterThatTheFontLacksIsAWholeEm)
{
    for (const char32_t character : {U'\x01', U'\u4E00', U'\uFFFF', U'\U0001F600'}) {
        EXPECT_EQ(FontWidths::of(character, false), FontWidths::Units) << unsigned(character);
        EXPECT_EQ(FontWidths::of(character, true), FontWidths::Units) << unsigned(character);
    }
}

TEST(FontWidths, SayWhichFilesTheyComeFrom)
{
    EXPECT_EQ(std::strlen(FontWidths::sourceSum(false)), 64u);
    EXPECT_STRNE(FontWidths::sourceSum(false), FontWidths::sourceSum(true));
}

} // namespace
