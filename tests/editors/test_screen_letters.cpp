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

TEST(Mnemonics, CaptionsTogetherHaveAsManyLettersAsThereAre)
{
    clsMnemonics letters;
    letters.reserve(u'S');
    // Each gets its first letter if possible. "Date" gives up its own to "Dad", which must leave the A to "AA".
    EXPECT_EQ(
        QStringList({QStringLiteral("Dat&e"), QStringLiteral("&Tad"), QStringLiteral("&Dad"), QStringLiteral("&AA")}),
        letters.marked(
            QStringList {QStringLiteral("Date"), QStringLiteral("Tad"), QStringLiteral("Dad"), QStringLiteral("AA")}));
    EXPECT_EQ(QStringList({QStringLiteral("Seat"), QStringLiteral("&R&&D: R")}),
        letters.marked(QStringList {QStringLiteral("Seat"), QStringLiteral("R&D: R")}));
}

TEST(Mnemonics, DigitsComeInTheirOrderUntilTheyAreGiven)
{
    clsMnemonics letters;
    letters.reserve(u'2');
    QString digits;
    for (QChar digit = letters.digit(); !digit.isNull(); digit = letters.digit())
        digits += digit;
    EXPECT_EQ(QStringLiteral("134567890"), digits);
}

TEST(Mnemonics, AFixedLetterIsTakenInsideTheWord)
{
    clsMnemonics letters;
    EXPECT_EQ(QStringLiteral("Ca&ncel"), letters.marked(QStringLiteral("Cancel"), u'N'));
    EXPECT_EQ(QStringLiteral("N&ext >>"), letters.marked(QStringLiteral("Next >>")));
}
