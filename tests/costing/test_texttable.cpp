// Splitting a text into a table, before its content is interpreted.

#include "costing/tables/clsTextTable.h"
#include "tests/formdata/clsTestClaim.h"

namespace {

/// A text table as rows of cells separated by bars.
QStringList cellsOf(const QString &text, QChar separator = u',')
{
    const clsTextTable table = clsTextTable::read(text, separator);
    QStringList rows;
    for (const clsTextRow &row : table.Rows)
        rows << QString::number(row.Line) + u':' + row.Cells.join(u'|');
    if (!table.Error.isEmpty())
        rows << u'!' + table.Error;
    return rows;
}

} // namespace

TEST(TextTable, CellsQuotesAndLineEnds)
{
    EXPECT_EQ(QStringList(), cellsOf(""_q));
    EXPECT_EQ(QStringList({"1:a|b"_q, "2:c|d"_q, "3:e|f"_q, "4:g"_q}), cellsOf("a,b\r\nc,d\ne,f\rg"_q));
    EXPECT_EQ(QStringList({"1:a, b|say \"so\"|"_q, "2:|x"_q}), cellsOf("\"a, b\",\"say \"\"so\"\"\",\n,x\n"_q));
    EXPECT_EQ(QStringList({"1:1\r\n2|b"_q, "3:c"_q}), cellsOf("\"1\r\n2\",b\nc"_q));
    EXPECT_EQ(QStringList({"1:a\"b|cd"_q}), cellsOf("a\"b,\"c\"d"_q));
    EXPECT_EQ(QStringList({"1:a,b|c"_q}), cellsOf("a,b;c"_q, u';'));
    // Lines without any text are skipped.
    EXPECT_EQ(QStringList({"1:a"_q, "5:b"_q}), cellsOf("a\n\n,,\n  ,\nb\n\n"_q));
    EXPECT_EQ(
        QStringList({"1:a"_q, "2:b\n"_q, "!The quotes that open in line 2 are not closed"_q}), cellsOf("a\n\"b\n"_q));
}

TEST(TextTable, WhatIsTooLargeIsRefused)
{
    EXPECT_TRUE(cellsOf(QString(1000, u',')).last().startsWith("!Line 1 has more than 1000 cells"_q));
    EXPECT_FALSE(cellsOf("a"_q + QString(999, u',')).last().startsWith(u'!'));
    EXPECT_EQ("The table has more than 2000000 cells"_q, clsTextTable::read("\n"_q.repeated(2'000'001), u',').Error);
    EXPECT_EQ(QString(), clsTextTable::read("\n"_q.repeated(2'000'000), u',').Error);
    EXPECT_EQ("The table has more than 2000000 cells"_q,
        clsTextTable::read((QString(999, u',') + "a\n"_q).repeated(2'001), u',').Error);
    EXPECT_EQ("The table has more than 100000 rows"_q, clsTextTable::read("a\n"_q.repeated(100'001), u',').Error);
    EXPECT_EQ(QString(), clsTextTable::read("a\n"_q.repeated(100'000), u',').Error);
}

TEST(TextTable, CodePages)
{
    EXPECT_EQ("£1 – é"_q,
        mdTextOfTable("\xC2\xA3"
                      "1 \xE2\x80\x93 \xC3\xA9"));
    EXPECT_EQ("£1 – é"_q,
        mdTextOfTable("\xEF\xBB\xBF\xC2\xA3"
                      "1 \xE2\x80\x93 \xC3\xA9"));
    EXPECT_EQ("£1 – é"_q,
        mdTextOfTable("\xA3"
                      "1 \x96 \xE9"));
    EXPECT_EQ("aé"_q, mdTextOfTable("a\xE9"));
    EXPECT_EQ("aÃ"_q, mdTextOfTable("a\xC3")); // only the beginning of a sequence
    EXPECT_EQ(QString(), mdTextOfTable(""));
}
