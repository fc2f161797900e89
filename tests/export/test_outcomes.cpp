#include "formdata/mdOutcomesCollections.h"
#include "tests/support/mdTestPrinting.h"
#include "wordexport/mdSplitLineIntoCollection.h"
#include "wordexport/mdTextRequiresOverRun.h"

#include <gtest/gtest.h>

// The code lists of the government forms, word for word, and the two ways of splitting a text.

namespace {

QStringList listOf(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QString::fromUtf8(text);
    return list;
}

TEST(Outcomes, StageOfCaseEnd)
{
    EXPECT_EQ(
        listOf({
            " No Selection",
            "A) No proceedings issued",
            "B) Proceedings issued, no final hearing",
            "C) Determined at final hearing",
            "D) Determined on appeal",
            "E1) No proceedings issued",
            "E2) Proceedings issued, case concluded before decision on whether or not to grant permission is made",
            "F1) Permission refused, concluded at first application stage (usually papers)",
            "F2) Permission refused, concluded at a rolled - up hearing",
            "G) Permission not granted, concluded after renewed application",
            "H) Permission granted, no final hearing took place",
            "I1) Permission granted, no final hearing took place",
            "I2) Permission granted, determined at a rolled up hearing",
            "J) Permission granted, determined on appeal",
            "K) Interim bill fixed fee cases only - change of solicitor",
            "L) Interim bill fixed fee cases only - Aspect concluded",
            "M) Interim Bill VHCC - Stage concluded",
        }),
        StageOfCaseEndCollection());
}

TEST(Outcomes, HowDidCaseEnd)
{
    EXPECT_EQ(listOf({
                  " No Selection",
                  "A) Case withdrawn on solicitor or counsel recommendation",
                  "B) Client withdrew or ceased to give instructions",
                  "C) Case otherwise withdrawn/not proceeded with on merits",
                  "D) Settled",
                  "E) Determined by court/contested hearing",
                  "F) Legal aid withdrawn, not merits related",
                  "G) Interim bill fixed fee cases only - change of solicitor",
                  "H) Interim bill fixed fee cases only - Aspect concluded",
                  "I) Interim Bill VHCC - Stage concluded",
              }),
        HowDidCaseEndCollection());
}

TEST(Outcomes, Result)
{
    EXPECT_EQ(listOf({
                  " No Selection",
                  "A) Lump sum/property adjustment and periodical payments",
                  "B) Lump sum/property adjustment only",
                  "C) Periodical payments only",
                  "D) Client is respondent - clients liability to other party reduced, avoided or less than claimed",
                  "E) Possession proceedings dismissed or withdrawn",
                  "F) Postponed or suspended possession order made",
                  "G) Possession proceedings adjourned on terms",
                  "H) Client obtains order or agreement for repairs and compensation",
                  "I) Client obtains order or agreement for repairs only",
                  "J) Client obtains compensation only",
                  "K) Damages recovered in full",
                  "L) Reduced damages recovered (see guidance)",
                  "M) Client is defendant - claimant recovers no damages or reduced damages only",
                  "N) Substantive order in favour of the client",
                  "O) Settlement - with significant benefits for the client",
                  "P) Explanation or apology secured",
                  "Q) Outcome not known/client proceeding by other means",
                  "R) None of the above apply (i.e. concluded with no favourable order or settlement)",
              }),
        ResultCollection());
}

TEST(Outcomes, ADRProposed)
{
    EXPECT_EQ(listOf({
                  " No Selection",
                  "A) ADR was not considered appropriate to the case and neither side proposed any form of ADR",
                  "B) We proposed but opponent declined",
                  "C) Opponent proposed but we declined",
                  "D) Both sides agreed to ADR but case concluded without its use",
                  "E) Case resolved through mediation",
                  "F) Mediation led to a significant narrowing of the issues or earlier settlement",
                  "G) Case continued and was not significantly assisted by mediation",
                  "H) Case resolved through ADR",
                  "I) ADR led to a significant narrowing of the issues or earlier settlement",
                  "J) Case continued and was not significantly assisted by ADR",
              }),
        ADRProposedCollection());
}

TEST(Outcomes, PublicBenefitsAchievedWithTheBlankAtItsEnd)
{
    EXPECT_EQ(listOf({
                  " No Selection",
                  "P) The case achieved significant benefits for individuals other than the client ",
                  "N) No such wider public benefits achieved",
              }),
        PublicBenefitsAchievedCollection());
}

TEST(Outcomes, AsManyRowsAsTheFormsHave)
{
    EXPECT_EQ(17, StageOfCaseEndCollection().size());
    EXPECT_EQ(10, HowDidCaseEndCollection().size());
    EXPECT_EQ(19, ResultCollection().size());
    EXPECT_EQ(11, ADRProposedCollection().size());
    EXPECT_EQ(3, PublicBenefitsAchievedCollection().size());
}

struct CodeRow {
    const char *text;
    const char *code;
};

TEST(Outcomes, OutcomeCodeIsWhatStandsBeforeTheFirstBracket)
{
    const CodeRow rows[] = {
        {" No Selection", ""},
        {"", ""},
        {"no bracket (at all", ""},
        {"E1) No proceedings issued", "E1"},
        {"F1) Permission refused, concluded at first application stage (usually papers)", "F1"},
        {"R) None of the above apply (i.e. concluded with no favourable order or settlement)", "R"},
        {")", ""},
        {") after", ""},
        {"A)", "A"},
        {" A) kept with its blank", " A"},
    };
    for (const CodeRow &row : rows)
        EXPECT_EQ(QString::fromUtf8(row.code), OutcomeCode(QString::fromUtf8(row.text))) << row.text;
}

struct CutRow {
    const char *text;
    int length;
    std::initializer_list<const char *> lines;
};

TEST(SplitLineIntoCollection, TestsBeforeTheWord)
{
    // The length of a line includes a space before each word, one more than is visible.
    const CutRow rows[] = {
        {"", 60, {""}}, {"one", 60, {"one"}}, {"ab cd", 6, {"ab cd"}}, // 2 + 3 + 1 is 6: not greater
        {"ab cd", 5, {"ab", "cd"}},
        {"abcdef gh", 5, {"", "abcdef", "gh"}}, // a first word that is too long has an empty line before it
        {"abcd", 5, {"abcd"}}, // 4 + 0 + 1 is 5
        {"abcde", 5, {"", "abcde"}}, // 5 + 0 + 1 is 6
        {"ab abcdef cd", 5, {"ab", "abcdef", "cd"}},
        {"ab  cd", 9, {"ab  cd"}}, // a run of spaces is an empty word and stays inside a line
        {"  ab", 9, {"ab"}}, // and is trimmed at its ends
        {"ab  ", 9, {"ab"}},
        {"ab     cd", 5, {"ab", "cd"}}, // three empty words fill the line; the fourth and the word go to the next
        {"ab\r\ncd ef", 9, {"ab\r\ncd", "ef"}}, // a line end is part of its word
        {"\tab\t cd", 9, {"\tab\t cd"}}, // lines are split and trimmed only at spaces
    };
    for (const CutRow &row : rows)
        EXPECT_EQ(listOf(row.lines), mdSplitLineIntoCollection(QString::fromUtf8(row.text), row.length))
            << row.text << " at " << row.length;
}

TEST(CutIntoPieces, TestsAfterTheWord)
{
    // A piece grows by a word and a space; when it is longer than the cut length, it ends there.
    const CutRow rows[] = {
        {"", 5, {""}}, {"ab", 5, {"ab"}}, {"ab cd", 6, {"ab cd"}}, // 6 is not greater than 6
        {"ab cd", 5, {"ab cd", ""}}, // the last word tips the line: an empty last piece, and so another sheet
        {"ab cd ef", 5, {"ab cd", "ef"}}, // the piece overruns by the word that tipped it
        {"abcdefgh", 5, {"abcdefgh", ""}}, // without a space, one piece of the whole length, which tips the line
        {"abcde", 5, {"abcde", ""}}, {"abcd", 5, {"abcd"}}, // 4 and a space
        {"ab   cd", 9, {"ab   cd"}}, // runs of spaces stay inside a piece
        {"ab   cd", 4, {"ab", "cd"}}, // and are removed at its ends
        {"ab\r\ncd ef", 20, {"ab\r\ncd ef"}},
        {"ab\r\ncd ef", 6, {"ab\r\ncd", "ef"}}, // 6 and a space is 7; text is not split at a line end
        {"   ", 2, {"", ""}}, // four empty words: the third space tips the line
    };
    for (const CutRow &row : rows)
        EXPECT_EQ(listOf(row.lines), mdCutIntoPieces(QString::fromUtf8(row.text), row.length))
            << row.text << " at " << row.length;
}

TEST(TextRequiresOverRun, OnlyBeyondTheLimit)
{
    EXPECT_FALSE(mdTextRequiresOverRun(QString(), 0));
    EXPECT_FALSE(mdTextRequiresOverRun(QString(400, u'x'), 400));
    EXPECT_TRUE(mdTextRequiresOverRun(QString(401, u'x'), 400));
    // A line end counts as two characters.
    EXPECT_TRUE(mdTextRequiresOverRun(QString(399, u'x') + QStringLiteral("\r\n"), 400));
}

} // namespace
