#include "tests/wordexport/clsTestDocument.h"

namespace {

// A table with one row of exact height and one cell without margins, whose paragraph has lines of exactly that height.
struct Box {
    int width;
    int height;
    int line;
    int halfPoints;
    QString content; ///< runs
    QString rule = QStringLiteral("exact");
};

QString format(int halfPoints)
{
    return QStringLiteral("<w:sz w:val=\"%1\"/><w:szCs w:val=\"%1\"/>").arg(halfPoints);
}

QString rowOf(const Box &box)
{
    return QStringLiteral("<w:tr><w:trPr><w:trHeight w:val=\"%1\" w:hRule=\"%2\"/></w:trPr><w:tc><w:tcPr><w:tcW "
                          "w:w=\"%3\" w:type=\"dxa\"/></w:tcPr><w:p><w:pPr><w:spacing w:before=\"0\" w:after=\"0\" "
                          "w:line=\"%4\" w:lineRule=\"exact\"/><w:rPr>%5</w:rPr></w:pPr>%6</w:p></w:tc></w:tr>")
        .arg(box.height)
        .arg(box.rule)
        .arg(box.width)
        .arg(box.line)
        .arg(format(box.halfPoints), box.content);
}

QString tableOf(const QString &rows, int width)
{
    return QStringLiteral("<w:tbl><w:tblPr><w:tblW w:w=\"%1\" w:type=\"dxa\"/><w:tblLayout w:type=\"fixed\"/>"
                          "<w:tblCellMar><w:left w:w=\"0\" w:type=\"dxa\"/><w:right w:w=\"0\" w:type=\"dxa\"/>"
                          "</w:tblCellMar></w:tblPr><w:tblGrid><w:gridCol w:w=\"%1\"/></w:tblGrid>%2</w:tbl>")
               .arg(width)
               .arg(rows)
        + p();
}

class clsFit : public testing::Test {
protected:
    /// Types a text in place of a box's placeholder, and returns the body.
    QString fillBox(Box box, const QString &text)
    {
        if (box.content.isEmpty())
            box.content = r(QStringLiteral("{x}"), format(box.halfPoints));
        const clsTestFolder folder;
        const QString path = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(rowOf(box), box.width)));
        clsMSWord word;
        word.OpenDocument(path);
        word.DoReplace(QStringLiteral("{x}"), text, false, false, true);
        word.SaveAndClose();
        fitted = word.fitted();
        EXPECT_EQ(clsWordLint::problemsOf(path), QStringList());
        return bodyXml(path);
    }

    /// Types the text at the cursor into a row's only cell.
    QString fillCell(const Box &box, const QString &text)
    {
        const clsTestFolder folder;
        const QString path = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(rowOf(box), box.width)));
        clsMSWord word;
        word.OpenDocument(path);
        word.SetText(QString(text), false, false, true, false);
        word.SaveAndClose();
        fitted = word.fitted();
        return bodyXml(path);
    }

    void expectOnly(const QString &placeholder, int printedHalfPoints, clsFittedText::State state)
    {
        ASSERT_EQ(fitted.size(), 1u);
        EXPECT_EQ(fitted[0].placeholder, placeholder);
        EXPECT_EQ(fitted[0].printedHalfPoints, printedHalfPoints);
        EXPECT_EQ(fitted[0].state, state);
    }

    std::vector<clsFittedText> fitted;
};

const Box Answer {5100, 500, 250, 20, {}};
const QString Placeholder = QStringLiteral("{x}");

TEST_F(clsFit, WhatFitsIsLeftAsItIs)
{
    const QString body = fillBox(Answer, QStringLiteral("14 Mill Lane\r\nLeeds"));
    EXPECT_TRUE(fitted.empty());
    EXPECT_TRUE(body.contains(QStringLiteral("w:val=\"500\" w:hRule=\"exact\"")));
    EXPECT_TRUE(body.contains(QStringLiteral("w:line=\"250\"")));
    EXPECT_FALSE(body.contains(QStringLiteral("<w:sz w:val=\"14\"")));
}

// Three lines in 25 points: at 7 points a line takes 1.15 times that, 161 twips, and three of them 483; at 7.5 they
// would take 519.
TEST_F(clsFit, ALineTooManyMakesTheTypedTextSmallerAndItsLinesLower)
{
    const QString body = fillBox(Answer, QStringLiteral("14 Mill Lane\r\nLeeds\r\nLS1 4AB"));
    expectOnly(Placeholder, 14, clsFittedText::Smaller);
    EXPECT_EQ(fitted[0].halfPoints, 20);
    EXPECT_EQ(fitted[0].lines, 3);
    EXPECT_EQ(fitted[0].row, 0);
    EXPECT_TRUE(body.contains(QStringLiteral("w:line=\"161\" w:lineRule=\"exact\"")));
    EXPECT_TRUE(body.contains(QStringLiteral("<w:rPr><w:sz w:val=\"14\"/><w:szCs w:val=\"14\"/></w:rPr>")));
    EXPECT_TRUE(body.contains(QStringLiteral("w:hRule=\"exact\"")));
}

// Four lines of 6 points take 552 twips.
TEST_F(clsFit, WhereTheSmallestSizeIsNotEnoughTheRowMayGrow)
{
    const QString body = fillBox(Answer, QStringLiteral("14 Mill Lane\r\nHeadingley\r\nLeeds\r\nLS1 4AB"));
    expectOnly(Placeholder, 12, clsFittedText::RunsOn);
    EXPECT_TRUE(body.contains(QStringLiteral("w:val=\"500\" w:hRule=\"atLeast\"")));
    EXPECT_TRUE(body.contains(QStringLiteral("LS1 4AB")));
}

TEST_F(clsFit, ARowThatIsLockedIsCutAndSaysSo)
{
    const QString locked = QStringLiteral("<w:sdt><w:sdtPr><w:lock w:val=\"sdtContentLocked\"/></w:sdtPr>"
                                          "<w:sdtContent>%1</w:sdtContent></w:sdt>");
    Box box = Answer;
    box.content = r(Placeholder, format(20));
    const clsTestFolder folder;
    const QString path
        = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(locked.arg(rowOf(box)), box.width)));
    clsMSWord word;
    word.OpenDocument(path);
    word.DoReplace(Placeholder, QStringLiteral("1\r\n2\r\n3\r\n4\r\n5"), false, false, true);
    word.SaveAndClose();
    fitted = word.fitted();
    expectOnly(Placeholder, 12, clsFittedText::Cut);
    EXPECT_TRUE(bodyXml(path).contains(QStringLiteral("w:hRule=\"exact\"")));
}

TEST_F(clsFit, ARowThatGrowsByItselfIsNotLookedAt)
{
    Box box = Answer;
    box.rule = QStringLiteral("atLeast");
    fillBox(box, QStringLiteral("1\r\n2\r\n3\r\n4\r\n5"));
    EXPECT_TRUE(fitted.empty());
}

// Next to words of the template the line keeps the height that they need, so that a smaller size saves only width.
TEST_F(clsFit, TheTemplatesOwnWordsKeepTheirSize)
{
    Box box = Answer;
    box.width = 2000;
    box.height = 250;
    box.content = r(QStringLiteral("Name: "), format(20)) + r(Placeholder, format(20));
    const QString body = fillBox(box, QStringLiteral("Wilhelmina Okonkwo"));
    ASSERT_EQ(fitted.size(), 1u);
    EXPECT_EQ(fitted[0].state, clsFittedText::Smaller);
    EXPECT_TRUE(body.contains(r(QStringLiteral("Name: "), format(20))));
    EXPECT_TRUE(body.contains(QStringLiteral("w:line=\"250\"")));
}

// The template's words are in the run in which text is typed, and are split from it.
TEST_F(clsFit, TextTypedBehindTheTemplatesWordsIsMadeSmallerAlone)
{
    Box box = Answer;
    box.height = 250;
    box.width = 2000;
    box.content = r(QStringLiteral("Name: "), format(20));
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(rowOf(box), box.width)));
    clsMSWord word;
    word.OpenDocument(path);
    word.DoReplace(QStringLiteral("Name: "), QStringLiteral("Name: "), false, false, true);
    word.SaveAndClose();
    EXPECT_TRUE(word.fitted().empty());
    word.OpenDocument(path);
    word.MoveCursorToStartOfRow();
    word.SetText(QStringLiteral("Wilhelmina Okonkwo"), false, false, true, false);
    word.SaveAndClose();
    ASSERT_EQ(word.fitted().size(), 1u);
    EXPECT_TRUE(bodyXml(path).contains(r(QStringLiteral("Name: "), format(20))));
}

// Three lines of 9 points don't fit into two of its lines. "Child and Adolescent" has 9449 thousandths of an em, 1134
// twips at 6 points and 1228 at 6.5, where it would need three lines again, of 137 twips each.
TEST_F(clsFit, AGridCellKeepsTheLastWord)
{
    const Box cell {1200, 400, 190, 18, {}};
    fillCell(cell, QStringLiteral("Child and Adolescent Psychiatrist"));
    ASSERT_EQ(fitted.size(), 1u);
    EXPECT_EQ(fitted[0].state, clsFittedText::Smaller);
    EXPECT_EQ(fitted[0].lines, 3);
    EXPECT_EQ(fitted[0].printedLines, 2);
    EXPECT_EQ(fitted[0].printedHalfPoints, 12);
    EXPECT_EQ(fitted[0].row, 1);
    EXPECT_EQ(fitted[0].column, 1);
    EXPECT_TRUE(fitted[0].placeholder.isEmpty());
}

// "Maribelle" has 833 + 556 + 333 + 222 + 556 + 556 + 222 + 222 + 556 = 4056 thousandths of an em: 730 twips at 9
// points, 689 at 8.5, 649 at 8.
TEST_F(clsFit, AWordIsNotBrokenWhereASmallerSizeKeepsItWhole)
{
    Box cell {700, 400, 190, 18, {}};
    fillCell(cell, QStringLiteral("Maribelle"));
    expectOnly(QString(), 17, clsFittedText::Smaller);
    cell.width = 740;
    fillCell(cell, QStringLiteral("Maribelle"));
    EXPECT_TRUE(fitted.empty());
}

// "Featherstone" has 5892 thousandths: 707 twips at 6 points.
TEST_F(clsFit, AWordThatNoSizeKeepsWholeStaysInItsSizeWhereItFits)
{
    const Box cell {700, 400, 190, 18, {}};
    fillCell(cell, QStringLiteral("Featherstone"));
    EXPECT_TRUE(fitted.empty());
}

// 1,234,567.00 has 9 * 556 + 3 * 278 = 5838 thousandths: 876 twips at 7.5 points, 817 at 7, 759 at 6.5.
TEST_F(clsFit, AnAmountIsNeverBroken)
{
    fillCell({800, 400, 160, 15, {}}, QStringLiteral("1,234,567.00"));
    expectOnly(QString(), 13, clsFittedText::Smaller);
}

TEST_F(clsFit, RowsOfAGridAreCountedFromItsFirst)
{
    const Box cell {700, 400, 190, 18, {}};
    Box head = cell;
    head.content = r(QStringLiteral("Head"));
    const clsTestFolder folder;
    const QString path = folder.write(
        QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(rowOf(head) + rowOf(cell) + rowOf(cell), cell.width)));
    clsMSWord word;
    word.OpenDocument(path);
    word.MoveCursorDown(1);
    word.SetText(QStringLiteral("Short"), false, false, true, false);
    word.MoveSursorToNextLine();
    word.SetText(QStringLiteral("Maribelle"), false, false, true, false);
    word.SaveAndClose();
    ASSERT_EQ(word.fitted().size(), 1u);
    EXPECT_EQ(word.fitted()[0].row, 2);
}

// For lines of 15 twips the word processor that prints the forms deducts half of both from every cell of the table if
// its first cell has both, otherwise half of one. Four M of ten points are not quite 667 twips wide.
TEST_F(clsFit, TheLinesBesideATablesFirstCellTakeRoomFromAllItsCells)
{
    const auto isSmaller = [](const char *sides, int width) {
        QString lines;
        for (const QString &side : QString::fromLatin1(sides).split(u' '))
            lines += QStringLiteral("<w:%1 w:val=\"single\" w:sz=\"6\"/>").arg(side);
        Box head {width, 400, 190, 18, r(QStringLiteral("a"))};
        Box cell {width, 400, 250, 20, r(Placeholder, format(20))};
        const QString first = rowOf(head).replace(
            QLatin1String("</w:tcPr>"), QStringLiteral("<w:tcBorders>%1</w:tcBorders></w:tcPr>").arg(lines));
        const clsTestFolder folder;
        const QString path
            = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(first + rowOf(cell), width)));
        clsMSWord word;
        word.OpenDocument(path);
        word.DoReplace(Placeholder, QStringLiteral("MMMM"), false, false, true);
        word.SaveAndClose();
        return !word.fitted().empty();
    };
    EXPECT_FALSE(isSmaller("left", 667 + 8));
    EXPECT_TRUE(isSmaller("left", 667 + 7));
    EXPECT_FALSE(isSmaller("left right", 667 + 15));
    EXPECT_TRUE(isSmaller("left right", 667 + 14));
}

// Two lines of 250 twips fill a row of 500, except for the half-point line above it.
TEST_F(clsFit, TheLineAboveARowTakesItsRoom)
{
    const QString lined = QStringLiteral("<w:tcBorders><w:top w:val=\"single\" w:sz=\"4\"/></w:tcBorders></w:tcPr>");
    for (const bool hasLine : {false, true}) {
        Box box = Answer;
        box.content = r(Placeholder, format(20));
        QString table = tableOf(rowOf(box), box.width);
        if (hasLine)
            table.replace(QLatin1String("</w:tcPr>"), lined);
        const clsTestFolder folder;
        const QString path = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(table));
        clsMSWord word;
        word.OpenDocument(path);
        word.DoReplace(Placeholder, QStringLiteral("14 Mill Lane\r\nLeeds"), false, false, true);
        word.SaveAndClose();
        EXPECT_EQ(word.fitted().size(), hasLine ? 1u : 0u);
    }
}

// The first cell makes its row grow; the amount in the second is still kept whole, as if it came first.
TEST_F(clsFit, ARowThatGrewForOneCellKeepsTheAmountsOfTheOthersWhole)
{
    const Box first {1000, 400, 160, 15, {}};
    const Box second {800, 400, 160, 15, {}};
    QString row = rowOf(first);
    const QString cell = rowOf(second).section(QLatin1String("</w:trPr>"), 1).section(QLatin1String("</w:tr>"), 0, 0);
    row.replace(QLatin1String("</w:tr>"), cell + QLatin1String("</w:tr>"));
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("Sheet.doc"), clsTestDocument(tableOf(row, 1800)));
    clsMSWord word;
    word.OpenDocument(path);
    word.MoveCursorToStartOfRow();
    word.SetText(QStringLiteral("1\r\n2\r\n3\r\n4\r\n5\r\n6"), false, false, true, false);
    word.MoveCursorRight(1);
    word.SetText(QStringLiteral("1,234,567.00"), false, false, true, false);
    word.SaveAndClose();
    ASSERT_EQ(word.fitted().size(), 2u);
    EXPECT_EQ(word.fitted()[0].state, clsFittedText::RunsOn);
    EXPECT_EQ(word.fitted()[1].state, clsFittedText::Smaller);
    EXPECT_EQ(word.fitted()[1].printedHalfPoints, 13);
}

} // namespace
