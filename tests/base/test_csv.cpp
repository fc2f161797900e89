// Tables as text.

#include "base/mdCsv.h"

#include <gtest/gtest.h>

namespace {

const QString Mark = QStringLiteral("'");

} // namespace

TEST(Csv, QuotesStandOnlyWhereACellNeedsThem)
{
    EXPECT_EQ("a,b c,\r\n", mdCsvLine({"a", "b c", ""}));
    EXPECT_EQ("\"a,b\",\"say \"\"so\"\"\",\"a\nb\",\"c\rd\", e ,f;g\th\r\n",
        mdCsvLine({"a,b", "say \"so\"", "a\nb", "c\rd", " e ", "f;g\th"}));
    EXPECT_EQ("\r\n", mdCsvLine({}));
    EXPECT_EQ("a,b\t\"c\td\"\r\n", mdCsvLine({"a,b", "c\td"}, '\t'));
}

TEST(Csv, ATextThatWouldBeAFormulaIsMarked)
{
    for (const char *text : {"=1+1", "=", "+44 20 7946", "-", "-1-2", "@SUM(A1)", "+", "-1.2.3", "+1e5"})
        EXPECT_EQ(Mark + text, mdGuardedText(text)) << text;
    for (const char *text : {"", "a=b", "-12.50", "+7", "-1,250.00", "12.50", "'=1", " =1", "'"})
        EXPECT_EQ(text, mdGuardedText(text)) << text;
}
