// Which characters a text box accepts.

#include "controls/mdBoxText.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

TEST(BoxText, EveryLineBreakBecomesOneOrABlank)
{
    const QString text = QString::fromUtf8("a\r\nb\nc\rd\u2028e\u2029f\vg\fh");
    EXPECT_EQ(QStringLiteral("a\nb\nc\nd\ne\nf\ng\nh"), BoxText(text, true));
    EXPECT_EQ(QStringLiteral("a b c d e f g h"), BoxText(text, false));
}

TEST(BoxText, NothingElseChanges)
{
    const QString text = QString::fromUtf8(" £5\u00a0“smart”\t– it’s\u00ad  ");
    EXPECT_EQ(text, BoxText(text, true));
    EXPECT_EQ(text, BoxText(text, false));
}

TEST(BoxText, PastedBlanksAreBlanksAndCharactersWithoutShapeGo)
{
    EXPECT_EQ(QString::fromUtf8("a b c d e f “it’s” £\U0001f600"),
        PastedBoxText(QString::fromUtf8("a\u00a0b\tc\u202fd\u2007e\u3000f “it’s” £\U0001f600"), true));
    EXPECT_EQ(QStringLiteral("abcde"), PastedBoxText(QString::fromUtf8("a\u200bb\u00adc\ufeffd\ufffc\u0007e"), false));
    EXPECT_EQ(QStringLiteral("a\nb"), PastedBoxText(QStringLiteral("a\r\nb"), true));
    EXPECT_EQ(QStringLiteral("a b "), PastedBoxText(QStringLiteral("a\r\nb\r\n"), false));
}

TEST(BoxText, TheClaimHasTwoCharactersForABreak)
{
    EXPECT_EQ(QStringLiteral("a\r\nb\r\n\r\nc\r\n"), WithLineBreaks(QString::fromUtf8("a\nb\u2029\u2028c\n")));
}
