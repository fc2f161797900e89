// How many paper pages a body takes. In these tests a page is 1000 twips high, a line of text 100.

#include "wordexport/document/mdWordPages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

int pagesOf(const std::string &blocks)
{
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(("<w:body>" + blocks
        + "<w:sectPr><w:pgSz w:w=\"3000\" w:h=\"1300\"/><w:pgMar w:top=\"100\" w:bottom=\"200\" w:left=\"0\" "
          "w:right=\"0\"/></w:sectPr></w:body>")
                                         .c_str()));
    return mdPaperPages(document.first_child(), clsWordLooks(pugi::xml_node()));
}

/// A paragraph of that many exact lines.
std::string paragraph(int lines, const std::string &properties = {}, const std::string &spacing = {})
{
    std::string text = "a";
    for (int i = 1; i < lines; ++i)
        text += "</w:t><w:br/><w:t>a";
    return "<w:p><w:pPr><w:spacing w:line=\"100\" w:lineRule=\"exact\" " + spacing + "/>" + properties
        + "</w:pPr><w:r><w:t>" + text + "</w:t></w:r></w:p>";
}

std::string cell(int lines, const std::string &properties = {})
{
    return "<w:tc><w:tcPr><w:tcW w:w=\"1000\" w:type=\"dxa\"/>" + properties + "</w:tcPr>" + paragraph(lines)
        + "</w:tc>";
}

std::string row(int height, const std::string &rule, const std::string &cells, bool splits = false)
{
    return "<w:tr><w:trPr>" + std::string(splits ? "" : "<w:cantSplit/>") + "<w:trHeight w:val=\""
        + std::to_string(height) + "\" w:hRule=\"" + rule + "\"/></w:trPr>" + cells + "</w:tr>";
}

std::string table(const std::string &rows)
{
    return "<w:tbl><w:tblGrid><w:gridCol w:w=\"1000\"/><w:gridCol w:w=\"1000\"/></w:tblGrid>" + rows + "</w:tbl>";
}

} // namespace

TEST(mdPaperPages, ParagraphsFillThePageLineByLine)
{
    EXPECT_EQ(1, pagesOf({}));
    EXPECT_EQ(1, pagesOf(paragraph(10)));
    EXPECT_EQ(2, pagesOf(paragraph(11)));
    EXPECT_EQ(2, pagesOf(paragraph(20)));
    EXPECT_EQ(3, pagesOf(paragraph(12) + paragraph(9)));
    EXPECT_EQ(2, pagesOf(paragraph(9, {}, "w:before=\"60\" w:after=\"60\"") + paragraph(1)));
}

TEST(mdPaperPages, ExactRowsAreAsHighAsTheySay)
{
    EXPECT_EQ(1, pagesOf(table(row(500, "exact", cell(30)) + row(500, "exact", cell(1)))));
    EXPECT_EQ(2, pagesOf(table(row(500, "exact", cell(1)) + row(501, "exact", cell(1)))));
}

TEST(mdPaperPages, ARowThatGrowsIsAsHighAsItsHighestCell)
{
    EXPECT_EQ(1, pagesOf(table(row(300, "atLeast", cell(4) + cell(7)) + row(300, "exact", cell(1)))));
    EXPECT_EQ(2, pagesOf(table(row(300, "atLeast", cell(4) + cell(8)) + row(300, "exact", cell(1)))));
    // A row without a height is as high as its text.
    EXPECT_EQ(2, pagesOf(table("<w:tr>" + cell(8) + "</w:tr>" + row(300, "exact", cell(1)))));
    EXPECT_EQ(1, pagesOf(table(row(700, "atLeast", cell(4)) + row(300, "exact", cell(1)))));
}

TEST(mdPaperPages, ARowThatMayNotBeSplitBeginsAPageUnlessItIsHigherThanOne)
{
    // 300, then 800 on the next page, which has no room for 300 more.
    const std::string before = row(300, "exact", cell(1));
    EXPECT_EQ(3, pagesOf(table(before + row(100, "atLeast", cell(8)) + row(300, "exact", cell(1)))));
    // Split, 7 lines are on the first page and 1 on the second.
    EXPECT_EQ(2, pagesOf(table(before + row(100, "atLeast", cell(8), true) + row(300, "exact", cell(1)))));
    EXPECT_EQ(3, pagesOf(table(before + row(100, "atLeast", cell(10)) + row(300, "exact", cell(1)))));
    // Higher than a page: 7 lines on the first, 4 on the second.
    EXPECT_EQ(2, pagesOf(table(before + row(100, "atLeast", cell(11)) + row(300, "exact", cell(1)))));
    EXPECT_EQ(4, pagesOf(table(before + row(100, "atLeast", cell(28)))));
}

TEST(mdPaperPages, EachPageOfASplitRowHasTheSpaceAboveItsText)
{
    const auto spaced = [](int lines) {
        return "<w:tc><w:tcPr><w:tcW w:w=\"1000\" w:type=\"dxa\"/></w:tcPr>" + paragraph(lines, {}, "w:before=\"50\"")
            + "</w:tc>";
    };
    // 9 lines per page instead of 10, with 50 left below the last of them.
    EXPECT_EQ(2, pagesOf(table(row(100, "atLeast", spaced(18)) + row(50, "exact", cell(1)))));
    EXPECT_EQ(3, pagesOf(table(row(100, "atLeast", spaced(18)) + row(51, "exact", cell(1)))));
    EXPECT_EQ(3, pagesOf(table(row(100, "atLeast", spaced(19)))));
}

TEST(mdPaperPages, ACellOverSeveralRowsMakesTheLastOneGrow)
{
    const auto reaching = [](int lines) {
        return table(row(200, "exact", cell(lines, "<w:vMerge w:val=\"restart\"/>") + cell(1))
            + row(200, "atLeast", cell(1, "<w:vMerge/>") + cell(1)) + row(400, "exact", cell(1) + cell(1)));
    };
    EXPECT_EQ(1, pagesOf(reaching(4)));
    EXPECT_EQ(1, pagesOf(reaching(6)));
    EXPECT_EQ(2, pagesOf(reaching(7)));
    // Only what the rows above leave over adds to the last row's height: 60 of the third line are in the first row.
    const auto uneven = [](int room) {
        return table(row(260, "exact", cell(6, "<w:vMerge w:val=\"restart\"/>") + cell(1))
            + row(100, "atLeast", cell(1, "<w:vMerge/>") + cell(1)) + row(room, "exact", cell(1) + cell(1)));
    };
    EXPECT_EQ(1, pagesOf(uneven(400)));
    EXPECT_EQ(2, pagesOf(uneven(401)));
}

TEST(mdPaperPages, LinesTakeRoomWhereARowGrowsAndBelowATable)
{
    const auto lined = [](const char *side, int eighths) {
        return "<w:tcBorders><w:" + std::string(side) + " w:val=\"single\" w:sz=\"" + std::to_string(eighths)
            + "\"/></w:tcBorders>";
    };
    // Six eighths of a point are 15 twips.
    const std::string below = table(row(300, "exact", cell(1, lined("bottom", 6))));
    EXPECT_EQ(1, pagesOf(below + table(row(685, "exact", cell(1)))));
    EXPECT_EQ(2, pagesOf(below + table(row(686, "exact", cell(1)))));
    const auto grown = [&](const std::string &lines, int rest) {
        return pagesOf(
            table(row(300, "exact", cell(1)) + row(100, "atLeast", cell(4, lines)) + row(rest, "exact", cell(1))));
    };
    EXPECT_EQ(1, grown(lined("top", 4), 290));
    EXPECT_EQ(2, grown(lined("top", 4), 291));
    EXPECT_EQ(1, grown("<w:tcBorders><w:top w:val=\"nil\" w:sz=\"4\"/></w:tcBorders>", 300));
    // The borders of rows of exact height are part of it.
    EXPECT_EQ(1, pagesOf(table(row(1000, "exact", cell(1, lined("top", 6))))));
}

TEST(mdPaperPages, TheParagraphThatGoesInJoiningTakesNoRoom)
{
    const std::string empty = "<w:p><w:pPr><w:spacing w:line=\"100\" w:lineRule=\"exact\"/></w:pPr></w:p>";
    EXPECT_EQ(1, pagesOf(paragraph(9) + empty + empty));
    EXPECT_EQ(2, pagesOf(paragraph(9) + empty + empty + empty));
    EXPECT_EQ(2, pagesOf(paragraph(9) + empty + paragraph(1)));
    // The paragraph after a table must stay.
    EXPECT_EQ(2, pagesOf(table(row(1000, "exact", cell(1))) + empty));
}

TEST(mdPaperPages, BreaksBeginPages)
{
    EXPECT_EQ(2, pagesOf(paragraph(1) + paragraph(1, "<w:pageBreakBefore/>")));
    EXPECT_EQ(2, pagesOf("<w:p><w:r><w:br w:type=\"page\"/></w:r></w:p>" + paragraph(1)));
    EXPECT_EQ(2, pagesOf(paragraph(1, "<w:sectPr/>") + paragraph(1)));
}

TEST(mdPaperPages, AnythingIsCounted)
{
    // Rows with impossible heights, and pages without room.
    EXPECT_EQ(2, pagesOf(table(row(2147483647, "exact", cell(1)) + row(2147483647, "atLeast", cell(1)))));
    pugi::xml_document document;
    ASSERT_TRUE(document.load_string(
        "<w:body><w:p/><w:p/><w:p/><w:sectPr><w:pgSz w:w=\"0\" w:h=\"-2147483648\"/></w:sectPr></w:body>"));
    EXPECT_EQ(2, mdPaperPages(document.first_child(), clsWordLooks(pugi::xml_node())));
}
