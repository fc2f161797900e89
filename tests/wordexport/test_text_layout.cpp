#include "wordexport/document/clsTextLayout.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

using TextLayout::Lines;
using TextLayout::Paragraph;
using TextLayout::Tab;

// At 10 points a digit is 1139 units wide, which is 667 sixths of a twip (1139 * 1200 / 2048 = 667.4), an "i" 267, a
// space 333, a hyphen 400 (682 units). Each line has a sixth as reserve: ten digits need (6670 + 1) / 6, which is 1112
// twips.
constexpr int TenDigits = 1112;

Paragraph paragraph(const QString &text, int halfPoints = 20, bool bold = false)
{
    Paragraph made;
    for (const uint code : text.toUcs4())
        made.text.push_back({code, halfPoints, bold});
    return made;
}

int linesOf(const QString &text, int width)
{
    return TextLayout::layOut(paragraph(text), width).count();
}

TEST(TextLayout, WidthsAreThoseOfTheFontAtTheSize)
{
    EXPECT_EQ(TextLayout::widthOf({U'0', 20, false}), 667);
    EXPECT_EQ(TextLayout::widthOf({U'i', 20, false}), 267); // 455 units: 266.6
    EXPECT_EQ(TextLayout::widthOf({U'i', 20, true}), 333); // 569 units: 333.4
    EXPECT_EQ(TextLayout::widthOf({U'W', 12, false}), 680); // 1933 units: 679.6
    EXPECT_EQ(TextLayout::widthOf({U'\u00AD', 20, false}), 0);
}

TEST(TextLayout, ALineHoldsWhatItsWidthHoldsAndNotATwipLess)
{
    EXPECT_EQ(linesOf(QStringLiteral("0000000000"), TenDigits), 1);
    EXPECT_EQ(linesOf(QStringLiteral("0000000000"), TenDigits - 1), 2);
    // Two words: 10 digits, a space and 5 "i": 6670 + 333 + 1335 + 1 = 8339, 1390 twips.
    EXPECT_EQ(linesOf(QStringLiteral("0000000000 iiiii"), 1390), 1);
    EXPECT_EQ(linesOf(QStringLiteral("0000000000 iiiii"), 1389), 2);
}

TEST(TextLayout, AnEmptyTextIsALineAndSoIsWhatFollowsALineBreak)
{
    EXPECT_EQ(linesOf(QString(), TenDigits), 1);
    EXPECT_EQ(linesOf(QStringLiteral("0\v0"), TenDigits), 2);
    EXPECT_EQ(linesOf(QStringLiteral("0\v"), TenDigits), 2);
    EXPECT_EQ(linesOf(QStringLiteral("\v\v\v"), TenDigits), 4);
}

TEST(TextLayout, BlanksHangOverTheEndOfALine)
{
    EXPECT_EQ(linesOf(QStringLiteral("0000000000          "), TenDigits), 1);
    EXPECT_EQ(linesOf(QStringLiteral("0000000000          0000000000"), TenDigits), 2);
}

struct Row {
    const char16_t *text;
    int lines; ///< in a space for ten digits
};

// Each text has twelve to twenty characters, so that it takes two lines if it may be broken in a good place, and three
// if it would need a break in a wrong place.
constexpr Row Breaks[] = {
    {u"00000000-nnnnnnnnn", 2}, // after the hyphen
    {u"nnnnnnnnn\u00A0nnnnnnnnn", 2}, // between letters, since a no-break space is not a break
    {u"nnnnnn nnnnn\u00A0nn nn", 2},
    {u"nnnnn nnnn/nnnn nnn", 3}, // a slash is not a break if the word has a line to itself
    {u"nnnnnnn/nnnnnnnn nn", 3}, // but it is in a word that is wider: 7, 8 and 2 letters
    {u"nnnn nnnnn / nnnnn", 3}, // and it stays with the word before it
    {u"nn nnn-nn/nnnnnnn", 3}, // a word with a slash moves down whole, and is then broken between letters
    {u"nnn-nnnnn/nnnnnn", 3}, // a line that would end with the slash ends with the hyphen
    {u"00000 0000/0000 000", 3}, // dates are not broken there
    {u"nnnnn nnnn,nnnn nnn", 3},
    {u"nnnnn nnn\u2013nnnn nnn", 2},
    {u"nnnnn nn\u00ADnnnn nnnn", 2},
};

TEST(TextLayout, LinesAreBrokenWhereWordProcessorsBreakThem)
{
    for (const Row &row : Breaks)
        EXPECT_EQ(linesOf(QString::fromUtf16(row.text), TenDigits), row.lines)
            << QString::fromUtf16(row.text).toStdString();
}

TEST(TextLayout, AWordWiderThanALineIsBrokenByLetters)
{
    // It starts on a new line.
    const Lines lines = TextLayout::layOut(paragraph(QStringLiteral("nnn nnnnnnnnnnnn")), TenDigits);
    EXPECT_EQ(lines.count(), 3);
    EXPECT_EQ(lines.brokenWords, 1);
    EXPECT_EQ(lines.brokenAmounts, 0);
    EXPECT_FALSE(lines.tooNarrow);
    EXPECT_EQ(TextLayout::layOut(paragraph(QStringLiteral("nnn nnnnnnnnnn")), TenDigits).brokenWords, 0);
}

TEST(TextLayout, ABrokenAmountIsTold)
{
    // A comma is as wide as a space: 1,234,567.00 needs 9 * 667 + 3 * 333 + 1 = 7003 sixths, 1168 twips.
    EXPECT_EQ(TextLayout::layOut(paragraph(QStringLiteral("1,234,567.00")), 1168).brokenAmounts, 0);
    EXPECT_EQ(TextLayout::layOut(paragraph(QStringLiteral("1,234,567.00")), 1167).brokenAmounts, 1);
    EXPECT_EQ(TextLayout::layOut(paragraph(QStringLiteral("1,234,567.0x")), 1160).brokenAmounts, 0);
}

TEST(TextLayout, APlaceNarrowerThanACharacterIsTold)
{
    const Lines lines = TextLayout::layOut(paragraph(QStringLiteral("000")), 100);
    EXPECT_TRUE(lines.tooNarrow);
    EXPECT_EQ(lines.count(), 3);
}

TEST(TextLayout, IndentsTakeRoom)
{
    Paragraph indented = paragraph(QStringLiteral("0000000000 0000000000"));
    indented.left = 100;
    indented.right = 50;
    EXPECT_EQ(TextLayout::layOut(indented, TenDigits + 150).count(), 2);
    EXPECT_EQ(TextLayout::layOut(indented, TenDigits + 149).count(), 4);
    indented.firstLine = 50;
    EXPECT_EQ(TextLayout::layOut(indented, TenDigits + 150).count(), 3);
    indented.firstLine = -100;
    EXPECT_EQ(TextLayout::layOut(indented, TenDigits + 50).count(), 3);
}

TEST(TextLayout, EachSizeCountsWhereItStands)
{
    Paragraph mixed = paragraph(QStringLiteral("00000 00000"));
    for (size_t i = 6; i < mixed.text.size(); ++i)
        mixed.text[i].halfPoints = 12;
    // 5 * 667 + 333 + 5 * 400 (1139 * 720 / 2048 = 400.4) + 1 = 5669, 945 twips.
    EXPECT_EQ(TextLayout::layOut(mixed, 945).sizes, std::vector<int>({20}));
    EXPECT_EQ(TextLayout::layOut(mixed, 944).sizes, std::vector<int>({20, 12}));
}

TEST(TextLayout, TabsLeadToTheirStops)
{
    Paragraph tabbed = paragraph(QStringLiteral("0\t0"));
    tabbed.tabs = {{500, Tab::Left}};
    EXPECT_EQ(TextLayout::layOut(tabbed, 612).count(), 1); // 500 + (667 + 1) / 6 = 611.3
    EXPECT_EQ(TextLayout::layOut(tabbed, 611).count(), 3); // the tab moves too, and leaves no space again
    tabbed.tabs = {{500, Tab::Right}};
    // A tab stop beyond the end of the line counts as its end: 2 * 667 + 1 = 1335, 223 twips.
    EXPECT_EQ(TextLayout::layOut(tabbed, 500).count(), 1);
    EXPECT_EQ(TextLayout::layOut(tabbed, 223).count(), 1);
    EXPECT_EQ(TextLayout::layOut(tabbed, 222).count(), 2);
    tabbed.tabs.clear(); // every 720 twips
    EXPECT_EQ(TextLayout::layOut(tabbed, 832).count(), 1);
    EXPECT_EQ(TextLayout::layOut(tabbed, 831).count(), 2);
}

// Twelve digits are more than a line. They move to the next line together with the tab before them, from there alone to
// the third, and on to the fourth.
TEST(TextLayout, AWordThatIsWiderThanItsLineLeavesItsTabBehind)
{
    Paragraph note = paragraph(QStringLiteral("\t0\t000000000000"));
    note.tabs = {{200, Tab::Right}, {300, Tab::Left}};
    EXPECT_EQ(TextLayout::layOut(note, TenDigits).count(), 4);
}

} // namespace
