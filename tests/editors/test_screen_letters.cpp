#include "editors/clsMnemonics.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

TEST(Mnemonics, TakeTheFirstFreeLetterThatBeginsAWord)
{
    clsMnemonics letters;
    letters.reserve(u'F');
    letters.reserve(u's');
    EXPECT_EQ(QStringLiteral("First &Name:"), letters.marked(QStringLiteral("First Name:")));
    EXPECT_EQ(QStringLiteral("S&urname:"), letters.marked(QStringLiteral("Surname:")));
    EXPECT_EQ(QStringLiteral("&Title:"), letters.marked(QStringLiteral("Title:")));
}

TEST(Mnemonics, ACaptionWhoseLettersAreAllTakenGoesWithout)
{
    clsMnemonics letters;
    EXPECT_EQ(QStringLiteral("&1:"), letters.marked(QStringLiteral("1:")));
    EXPECT_EQ(QStringLiteral("1:"), letters.marked(QStringLiteral("1:")));
    EXPECT_EQ(QStringLiteral("%"), letters.marked(QStringLiteral("%")));
}

TEST(Mnemonics, AnAmpersandOfTheCaptionStaysOne)
{
    clsMnemonics letters;
    EXPECT_EQ(QStringLiteral("&T&&W"), letters.marked(QStringLiteral("T&W")));
    EXPECT_EQ(QStringLiteral("T&&&W"), letters.marked(QStringLiteral("T&W")));
    EXPECT_EQ(QStringLiteral("R&&D"), clsMnemonics::unmarked(QStringLiteral("R&D")));
}

TEST(Mnemonics, AFixedLetterIsTakenInsideTheWord)
{
    clsMnemonics letters;
    EXPECT_EQ(QStringLiteral("Ca&ncel"), letters.marked(QStringLiteral("Cancel"), u'N'));
    EXPECT_EQ(QStringLiteral("N&ext >>"), letters.marked(QStringLiteral("Next >>")));
}
