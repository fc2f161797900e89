#include "tests/support/mdExpectError.h"
#include "tests/wordexport/clsTestDocument.h"

namespace {

/// The document with a "#" typed at the cursor's position.
QString markedAfter(const QString &body, const std::function<void(clsMSWord &)> &moves)
{
    return plainAfterEditing(clsTestDocument(body), [&](clsMSWord &word) {
        moves(word);
        word.SetText(QStringLiteral("#"), false, false, true, false);
    });
}

QString markedDown(const QString &body, int n)
{
    return markedAfter(body, [n](clsMSWord &word) { word.MoveCursorDown(n); });
}

/// A table with texts in its cells, one string per row, cells separated by spaces.
QString table(const QStringList &rows)
{
    QStringList lines;
    for (const QString &row : rows) {
        QStringList cells;
        for (const QString &text : row.split(u' '))
            cells << tc(p(text));
        lines << tr(cells);
    }
    return tbl(lines);
}

const QString Break = QStringLiteral("<w:r><w:br/></w:r>");

QString spanned(const QString &text, int columns)
{
    return tc(p(text), QStringLiteral("<w:gridSpan w:val=\"%1\"/>").arg(columns));
}

QString merged(const QString &text, bool first)
{
    return tc(p(text), first ? QStringLiteral("<w:vMerge w:val=\"restart\"/>") : QStringLiteral("<w:vMerge/>"));
}

TEST(MoveCursorDown, CountsBodyParagraphsRowsAndTheParagraphsOfTheFirstCell)
{
    // Down the first cells: one line each for the title and the first row, two for the second.
    const QString body = p(QStringLiteral("t"))
        + tbl({tr({tc(p(QStringLiteral("a"))), tc(p(QStringLiteral("b")) + p(QStringLiteral("c")))}),
            tr({tc(p(QStringLiteral("d")) + p(QStringLiteral("e"))), tc(p(QStringLiteral("f")))})})
        + p(QStringLiteral("g"));
    EXPECT_EQ(markedDown(body, 0), QStringLiteral("#t/a/|b/c/||d/e/|f/||g/"));
    EXPECT_EQ(markedDown(body, 1), QStringLiteral("t/#a/|b/c/||d/e/|f/||g/"));
    EXPECT_EQ(markedDown(body, 2), QStringLiteral("t/a/|b/c/||#d/e/|f/||g/"));
    EXPECT_EQ(markedDown(body, 3), QStringLiteral("t/a/|b/c/||d/#e/|f/||g/"));
    EXPECT_EQ(markedDown(body, 4), QStringLiteral("t/a/|b/c/||d/e/|f/||#g/"));
}

TEST(MoveCursorDown, ALineBreakBeginsALine)
{
    const QString body = QStringLiteral("<w:p>%1%2%3</w:p>").arg(r(QStringLiteral("a")), Break, r(QStringLiteral("b")))
        + p(QStringLiteral("c"));
    EXPECT_EQ(markedDown(body, 1), QStringLiteral("a^#b/c/"));
    EXPECT_EQ(markedDown(body, 2), QStringLiteral("a^b/#c/"));
    const QString cells
        = tbl({tr({tc(QStringLiteral("<w:p>%1</w:p>").arg(Break)), tc(p())}), tr({tc(p()), tc(p())})}) + p();
    EXPECT_EQ(markedDown(cells, 1), QStringLiteral("^#/|/||/|/||/"));
    EXPECT_EQ(markedDown(cells, 2), QStringLiteral("^/|/||#/|/||/"));
}

TEST(MoveCursorDown, TheLinesOfARowAreThoseOfTheCellThatTheCursorIsIn)
{
    const QString body = tbl({tr({tc(p(QStringLiteral("a")) + p(QStringLiteral("b"))), tc(p(QStringLiteral("c")))}),
                             tr({tc(p(QStringLiteral("d"))), tc(p(QStringLiteral("e")))})})
        + p();
    const auto inSecondColumn = [&](int n) {
        return markedAfter(body, [n](clsMSWord &word) {
            word.MoveCursorRight(1);
            word.MoveCursorDown(n);
        });
    };
    EXPECT_EQ(inSecondColumn(1), QStringLiteral("a/b/|c/||d/|#e/||/"));
    EXPECT_EQ(inSecondColumn(2), QStringLiteral("a/b/|c/||d/|e/||#/"));
}

TEST(MoveCursorDown, EntersASecondTableAtItsFirstCell)
{
    const QString body = table({QStringLiteral("a b")}) + p(QStringLiteral("m")) + table({QStringLiteral("c d")}) + p();
    EXPECT_EQ(markedAfter(body,
                  [](clsMSWord &word) {
                      word.MoveCursorRight(1);
                      word.MoveCursorDown(2);
                  }),
        QStringLiteral("a/|b/||m/#c/|d/||/"));
}

TEST(MoveCursorDown, StopsAtTheLastLine)
{
    EXPECT_EQ(markedDown(p(QStringLiteral("a")) + p(QStringLiteral("b")), 100), QStringLiteral("a/#b/"));
    EXPECT_EQ(markedDown(table({QStringLiteral("a b"), QStringLiteral("c d")}) + p(), 100),
        QStringLiteral("a/|b/||c/|d/||#/"));
}

TEST(MoveCursorDown, KeepsToItsGridColumnThroughWideCells)
{
    const QString body = tbl({tr({tc(p(QStringLiteral("a"))), tc(p(QStringLiteral("b"))), tc(p(QStringLiteral("c")))}),
                             tr({spanned(QStringLiteral("d"), 2), tc(p(QStringLiteral("e")))}),
                             tr({tc(p(QStringLiteral("f"))), tc(p(QStringLiteral("g"))), tc(p(QStringLiteral("h")))})})
        + p();
    const auto from = [&](int right, int down) {
        return markedAfter(body, [=](clsMSWord &word) {
            word.MoveCursorRight(right);
            word.MoveCursorDown(down);
        });
    };
    EXPECT_EQ(from(2, 1), QStringLiteral("a/|b/|c/||d/|#e/||f/|g/|h/||/"));
    EXPECT_EQ(from(2, 2), QStringLiteral("a/|b/|c/||d/|e/||f/|g/|#h/||/"));
    EXPECT_EQ(from(1, 1), QStringLiteral("a/|b/|c/||#d/|e/||f/|g/|h/||/"));
    EXPECT_EQ(from(1, 2), QStringLiteral("a/|b/|c/||d/|e/||f/|#g/|h/||/"));
}

TEST(MoveCursorDown, CountsTheColumnsThatARowLeavesOut)
{
    const QString body = tbl({tr({tc(p(QStringLiteral("a"))), tc(p(QStringLiteral("b")))}),
                             tr({tc(p(QStringLiteral("c")))}, QStringLiteral("<w:gridBefore w:val=\"1\"/>"))})
        + p();
    EXPECT_EQ(markedAfter(body,
                  [](clsMSWord &word) {
                      word.MoveCursorRight(1);
                      word.MoveCursorDown(1);
                  }),
        QStringLiteral("a/|b/||#c/||/"));
}

TEST(MoveCursorDown, PassesOverTheRestOfACellThatGoesOverSeveralRows)
{
    const QString body = tbl({tr({merged(QStringLiteral("a"), true), tc(p(QStringLiteral("b")))}),
                             tr({merged(QString(), false), tc(p(QStringLiteral("c")))}),
                             tr({tc(p(QStringLiteral("d"))), tc(p(QStringLiteral("e")))})})
        + p();
    EXPECT_EQ(markedDown(body, 1), QStringLiteral("a/|b/||/|c/||#d/|e/||/"));
}

TEST(MoveCursorDown, WalksThroughATableInACellAndOutAgain)
{
    const QString body = tbl({tr({tc(p(QStringLiteral("a")) + table({QStringLiteral("b c"), QStringLiteral("d e")})
                                  + p(QStringLiteral("f")))}),
                             tr({tc(p(QStringLiteral("g")))})})
        + p();
    const QStringList expected = {
        QStringLiteral("#a/b/|c/||d/|e/||f/||g/||/"),
        QStringLiteral("a/#b/|c/||d/|e/||f/||g/||/"),
        QStringLiteral("a/b/|c/||#d/|e/||f/||g/||/"),
        QStringLiteral("a/b/|c/||d/|e/||#f/||g/||/"),
        QStringLiteral("a/b/|c/||d/|e/||f/||#g/||/"),
        QStringLiteral("a/b/|c/||d/|e/||f/||g/||#/"),
    };
    for (int n = 0; n < expected.size(); ++n)
        EXPECT_EQ(markedDown(body, n), expected[n]) << n;
}

TEST(MoveCursorDown, LooksThroughContentControlsAroundBlocksRowsAndCells)
{
    const auto control = [](const QString &content) {
        return QStringLiteral("<w:sdt><w:sdtPr/><w:sdtContent>%1</w:sdtContent></w:sdt>").arg(content);
    };
    const QString body = control(p(QStringLiteral("a")) + p(QStringLiteral("b")))
        + tbl({control(tr({control(tc(p(QStringLiteral("c")))), tc(p(QStringLiteral("d")))})),
            tr({tc(p(QStringLiteral("e"))), tc(p())})})
        + p();
    EXPECT_EQ(markedDown(body, 1), QStringLiteral("a/#b/c/|d/||e/|/||/"));
    EXPECT_EQ(markedDown(body, 2), QStringLiteral("a/b/#c/|d/||e/|/||/"));
    EXPECT_EQ(markedDown(body, 3), QStringLiteral("a/b/c/|d/||#e/|/||/"));
}

TEST(MoveCursorRight, GoesFromCellToCellAndOnToTheNextRow)
{
    const QString body = p() + grid(2, 2) + p();
    const auto right = [&](int n) {
        return markedAfter(body, [n](clsMSWord &word) {
            word.MoveCursorDown(1);
            word.MoveCursorRight(n);
        });
    };
    EXPECT_EQ(right(0), QStringLiteral("/#/|/||/|/||/"));
    EXPECT_EQ(right(1), QStringLiteral("/#/|/||/|/||/").replace(QLatin1String("#/|/"), QLatin1String("/|#/")));
    EXPECT_EQ(right(2), QStringLiteral("//|/||#/|/||/"));
    EXPECT_EQ(right(3), QStringLiteral("//|/||/|#/||/"));
    EXPECT_EQ(right(4), QStringLiteral("//|/||/|#/||/")); // the last cell of the table is the end
}

TEST(MoveCursorRight, SelectsTheCellSoThatTypingReplacesWhatItHolds)
{
    const QString body
        = tbl({tr({tc(p(QStringLiteral("a"))), tc(p(QStringLiteral("old")) + grid(1, 1) + p(QStringLiteral("er")))})})
        + p();
    EXPECT_EQ(markedAfter(body, [](clsMSWord &word) { word.MoveCursorRight(1); }), QStringLiteral("a/|#/||/"));
}

TEST(MoveCursorRight, AtTheTablesEndNothingIsReplaced)
{
    EXPECT_EQ(markedAfter(table({QStringLiteral("a b")}) + p(), [](clsMSWord &word) { word.MoveCursorRight(2); }),
        QStringLiteral("a/|b#/||/"));
}

TEST(MoveCursorRight, CountsAWideCellOnceAndTheRestOfATallOneNotAtAll)
{
    const QString body = tbl({tr({spanned(QStringLiteral("a"), 2), merged(QStringLiteral("b"), true)}),
                             tr({tc(p(QStringLiteral("c"))), tc(p(QStringLiteral("d"))), merged(QString(), false)}),
                             tr({tc(p(QStringLiteral("e"))), tc(p()), tc(p())})})
        + p();
    const auto right = [&](int n) { return markedAfter(body, [n](clsMSWord &word) { word.MoveCursorRight(n); }); };
    EXPECT_EQ(right(2), QStringLiteral("a/|b/||#/|d/|/||e/|/|/||/"));
    EXPECT_EQ(right(4), QStringLiteral("a/|b/||c/|d/|/||#/|/|/||/"));
}

TEST(MoveCursorToStartOfRow, GoesToTheFirstCell)
{
    EXPECT_EQ(markedAfter(table({QStringLiteral("a b"), QStringLiteral("c d")}) + p(),
                  [](clsMSWord &word) {
                      word.MoveCursorRight(3);
                      word.MoveCursorToStartOfRow();
                  }),
        QStringLiteral("a/|b/||#c/|d/||/"));
}

TEST(MoveCursorToStartOfRow, OutsideATableDoesNothing)
{
    EXPECT_EQ(plainAfterEditing(clsTestDocument(p(QStringLiteral("a{x}b"))),
                  [](clsMSWord &word) {
                      word.DoReplace(QStringLiteral("{x}"), QStringLiteral("y"), false, false, true);
                      word.MoveCursorToStartOfRow();
                      word.SetText(QStringLiteral("#"), false, false, true, false);
                  }),
        QStringLiteral("ay#b/"));
}

TEST(MoveSursorToNextLine, FillsAGridRowByRow)
{
    const QString result = plainAfterEditing(clsTestDocument(p() + grid(3, 3) + p()), [](clsMSWord &word) {
        word.MoveCursorDown(1);
        for (int row = 1; row <= 3; ++row) {
            for (int column = 1; column <= 3; ++column) {
                word.SetText(QStringLiteral("%1%2").arg(row).arg(column), false, false, true, false);
                if (column < 3)
                    word.MoveCursorRight(1);
            }
            word.MoveSursorToNextLine();
        }
        word.SetText(QStringLiteral("#"), false, false, true, false);
    });
    EXPECT_EQ(result, QStringLiteral("/11/|12/|13/||21/|22/|23/||31/|32/|33/||#/"));
}

TEST(MoveSursorToNextLine, ALineBreakTypedInTheLastCellIsOneOfItsLinesAndTheCursorIsOnTheLast)
{
    EXPECT_EQ(plainAfterEditing(clsTestDocument(grid(2, 2) + p()),
                  [](clsMSWord &word) {
                      word.SetText(QStringLiteral("a\r\nb"), false, false, true, false);
                      word.MoveCursorRight(1);
                      word.SetText(QStringLiteral("c\r\nd"), false, false, true, false);
                      word.MoveSursorToNextLine();
                      word.SetText(QStringLiteral("#"), false, false, true, false);
                  }),
        QStringLiteral("a^b/|c^d/||#/|/||/"));
}

TEST(clsWordCursor, ABodyOrCellWithoutAParagraphGetsOneWhereTheCursorComes)
{
    EXPECT_EQ(markedDown(QString(), 0), QStringLiteral("#/"));
    EXPECT_EQ(markedDown(QStringLiteral("<w:sectPr/>"), 0), QStringLiteral("#/"));
    EXPECT_EQ(markedDown(tbl({tr({tc(QString())})}) + p(), 0), QStringLiteral("#/||/"));
}

TEST(clsWordCursor, SpansBeyondAllMeasureDoNotUpsetTheCounting)
{
    const QString body = tbl({tr({spanned(QStringLiteral("a"), 2147483647), spanned(QStringLiteral("b"), 2147483647),
                                  tc(p(QStringLiteral("c")))}),
                             tr({tc(p(QStringLiteral("d"))), spanned(QStringLiteral("e"), -5)})})
        + p();
    EXPECT_EQ(markedAfter(body,
                  [](clsMSWord &word) {
                      word.MoveCursorRight(2);
                      word.MoveCursorDown(1);
                  }),
        QStringLiteral("a/|b/|c/||d/|#e/||/"));
}

TEST(clsWordCursor, ATableWithoutCellsIsPassedOver)
{
    const clsTestFolder folder;
    const QString path = folder.write(QStringLiteral("a.doc"),
        clsTestDocument(p(QStringLiteral("a")) + QStringLiteral("<w:tbl><w:tr/></w:tbl>") + p(QStringLiteral("b"))));
    clsMSWord word;
    word.OpenDocument(path);
    word.MoveCursorDown(1);
    word.SetText(QStringLiteral("#"), false, false, true, false);
    word.SaveAndClose();
    EXPECT_EQ(plain(path), QStringLiteral("a/|#b/"));
}

} // namespace
